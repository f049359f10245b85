#include "randomuser/model/Values.h"

#include <cctype>

#include "randomuser/model/Facts.h"

std::optional<Color> Values::typed() const {
    std::array<int, 3> channels = {};
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const std::optional<int> value = ValueOf(values[channel], isDecimal);
        if (!value) return std::nullopt;
        channels[channel] = *value;
    }
    return ColorOf(channels[0], channels[1], channels[2]);
}

const char* Values::refusal() const {
    return isDecimal ? "The value is not allowed. Only values from 0 to 255 are allowed."
                     : "The value is not allowed. Only values from 00 to FF are allowed.";
}

void Values::tell(Look& look) const {
    look.values = values;
    look.isSetEnabled = isSetEnabled;
    look.isModeEnabled = !isModeLocked;
    look.isDecimal = isDecimal;
}

void Values::show(const Color& color) {
    for (int channel = 0; channel < 3; ++channel)
        values.at(channel) = ValueText(ChannelOf(color, channel), isDecimal);
    isSetEnabled = false;
}

void Values::type(int channel, const std::string& text) {
    std::string& value = values.at(channel);
    if (text.empty() && value.empty()) return;
    value = text.substr(0, 3);
    for (char& character : value) character = static_cast<char>(std::toupper(character));
    isSetEnabled = true;
    isModeLocked = true;
}

void Values::endTyping() {
    isSetEnabled = false;
    isModeLocked = false;
}

bool Values::setMode(bool wantsDecimal) {
    if (isModeLocked || wantsDecimal == isDecimal) return false;
    isDecimal = wantsDecimal;
    return true;
}
