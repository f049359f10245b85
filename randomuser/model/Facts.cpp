#include "randomuser/model/Facts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>
#include <vector>

namespace {

/// A form may use fewer of the numbers.
std::string Printed(const char* form, int first, int second, int third) {
    std::array<char, 64> text{};
    // cppcheck-suppress wrongPrintfScanfArgNum
    std::snprintf(text.data(), text.size(), form, static_cast<unsigned>(first), static_cast<unsigned>(second),
                  static_cast<unsigned>(third));
    return text.data();
}

void ReplaceAll(std::string& text, std::string_view from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

std::string Expanded(std::string_view customFormat, const Color& color) {
    const auto [red, blue, green] = color;
    std::string text(customFormat);
    const std::vector<std::pair<const char*, std::string>> tokens = {
        {"%UR%", Printed("%02X", red, 0, 0)},   {"%UG%", Printed("%02X", green, 0, 0)},
        {"%UB%", Printed("%02X", blue, 0, 0)},  {"%LR%", Printed("%02x", red, 0, 0)},
        {"%LG%", Printed("%02x", green, 0, 0)}, {"%LB%", Printed("%02x", blue, 0, 0)},
        {"%DR%", std::to_string(red)},          {"%DG%", std::to_string(green)},
        {"%DB%", std::to_string(blue)},         {"%LD%", std::to_string(red + 256 * green + 65536 * blue)}};
    for (const auto& [token, value] : tokens) ReplaceAll(text, token, value);
    return text;
}

bool IsWebsafe(const Color& color) {
    return color.red % 51 == 0 && color.green % 51 == 0 && color.blue % 51 == 0;
}

bool IsFailsafe(const Color& color) {
    for (int index = 0; index < 16; ++index) {
        if (FailsafeColor(index) == color) return true;
    }
    return false;
}

std::string WithoutBlanks(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return std::string(text);
}

/// How bright a colour is by the guidelines of the Web, from 0 to 1.
double LightOf(const Color& color) {
    constexpr std::array weights = {0.2126, 0.7152, 0.0722};
    double light = 0;
    for (int channel = 0; channel < 3; ++channel) {
        const double level = ChannelOf(color, channel) / 255.0;
        light +=
            weights.at(channel) * (level <= 0.04 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4));
    }
    return light;
}

}  // namespace

Facts::Facts(ColorsByName javaScript) : javaScript(std::move(javaScript)) {}

std::string Facts::nameOf(const Color& color) const {
    for (const auto& [name, packed] : javaScript) {
        if (packed != Pack(color)) continue;
        if (name == "aqua") return "cyan";
        return name == "fuchsia" ? "magenta" : name;
    }
    return "";
}

std::string Facts::lettersOf(const Color& color) const {
    return std::string(IsWebsafe(color) ? "W" : "") + (IsFailsafe(color) ? "F" : "") +
           (nameOf(color).empty() ? "" : "J");
}

std::string Facts::foundName(const Color& color) const {
    const std::string name = nameOf(color);
    return name.empty() || name == "aliceblue" ? notJavaScript : name;
}

std::string Facts::offeredName(const Color& color, std::string_view name) const {
    const std::string known = nameOf(color);
    return known == name ? "" : known;
}

std::string Facts::report(const Color& color, std::string_view name) const {
    std::string text = IsWebsafe(color) ? "The selected colour is a websafe colour.\r\n\r\n"
                                        : "The selected colour is not a websafe colour.\r\n\r\n";
    text += IsFailsafe(color) ? "The selected colour will look good in failsafe mode.\r\n\r\n"
                              : "The selected colour will not look good in failsafe mode.\r\n\r\n";
    std::string known = nameOf(color);
    if (known.empty()) return text + "The selected colour is not a JavaScript colour.";
    if (known == "cyan") known += " (also known as aqua)";
    if (known == "magenta") known += " (also known as fuchsia)";
    text += "The selected colour is a JavaScript colour.\r\n\r\n";
    text += "In JavaScript, the name of the selected colour is " + known + ".";
    const std::string offered = offeredName(color, name);
    if (offered.empty()) return text;
    return text + "\r\n\r\nDo you want to change the name of the selected colour to " + offered + "?";
}

Color Facts::javaScriptColor(int index) const { return Unpack(std::next(javaScript.begin(), index)->second); }

std::optional<Color> Facts::colorByHue(int index) const {
    static const std::map<int, const char*> some = {
        {0, "black"},        {5, "lightgrey"},       {8, "white"},     {16, "red"},   {23, "orangered"},
        {38, "navajowhite"}, {39, "blanchedalmond"}, {57, "yellow"},   {72, "green"}, {90, "cyan"},
        {101, "aliceblue"},  {110, "navy"},          {129, "magenta"}, {138, "pink"}, {139, "lightpink"}};
    const auto found = some.find(index);
    if (found == some.end()) return std::nullopt;
    return Unpack(javaScript.at(found->second));
}

int ChannelOf(const Color& color, int channel) {
    return channel == 0 ? color.red : channel == 1 ? color.green : color.blue;
}

Color WebsafeColor(int index) { return ColorOf(index / 36 % 6 * 51, index / 6 % 6 * 51, index % 6 * 51); }

Color FailsafeColor(int index) {
    static constexpr std::array<Color, 16> colors = {
        ColorOf(0, 0, 0),     ColorOf(128, 0, 128), ColorOf(0, 0, 128),     ColorOf(0, 128, 128),
        ColorOf(0, 128, 0),   ColorOf(128, 128, 0), ColorOf(128, 0, 0),     ColorOf(128, 128, 128),
        ColorOf(255, 0, 255), ColorOf(0, 0, 255),   ColorOf(0, 255, 255),   ColorOf(0, 255, 0),
        ColorOf(255, 255, 0), ColorOf(255, 0, 0),   ColorOf(192, 192, 192), ColorOf(255, 255, 255)};
    return colors.at(static_cast<std::size_t>(index));
}

int SwatchRightOf(int window, int index) {
    if (window == 0) {
        // Six blocks of six columns: red changes within a block, green from one to the next.
        if (index / 36 < 5) return index + 36;
        return index / 6 % 6 < 5 ? index - 5 * 36 + 6 : index;
    }
    const int columns = window == 1 ? 16 : 7;
    return index % columns < columns - 1 ? index + 1 : index;
}

Color BarColor(const Color& color, int step) {
    const int added = step - std::min({color.red, color.green, color.blue});
    const auto limited = [](int channel) { return std::clamp(channel, 0, 255); };
    return ColorOf(limited(color.red + added), limited(color.green + added), limited(color.blue + added));
}

std::string CodeOf(int notation, const Color& color, std::string_view customFormat) {
    const auto [red, blue, green] = color;
    std::string number = std::to_string(red + 256 * green + 65536 * blue);
    switch (notation) {
        case 0: return Printed("#%02X%02X%02X", red, green, blue);
        case 1: return Printed("#%02x%02x%02x", red, green, blue);
        case 2: return Printed("&H00%02X%02X%02X&", blue, green, red);
        case 3: return Printed("RGB(%u, %u, %u)", red, green, blue);
        case 4: return Printed("0x00%02x%02x%02x", blue, green, red);
        case 5: return Printed("$00%02X%02X%02X", blue, green, red);
        case 6: return number;
        case 7: return Printed("ColorTranslator.FromHtml(\"#%02X%02X%02X\")", red, green, blue);
        case 8: return "ColorTranslator.FromOle(" + number + ")";
        case 9: return "ColorTranslator.FromWin32(" + number + ")";
        case 10: return Printed("Color(%u,%u,%u)", red, green, blue);
        default: return Expanded(customFormat, color);
    }
}

std::string ValueText(int channel, bool isDecimal) {
    return isDecimal ? std::to_string(channel) : Printed("%02X", channel, 0, 0);
}

std::optional<int> ValueOf(std::string_view text, bool isDecimal) {
    const std::string typed = WithoutBlanks(text);
    const std::string_view digits = isDecimal ? "0123456789" : "0123456789ABCDEFabcdef";
    if (typed.empty() || typed.find_first_not_of(digits) != std::string::npos) return std::nullopt;
    if (!isDecimal && typed.size() != 2) return std::nullopt;
    const int value = std::stoi(typed, nullptr, isDecimal ? 10 : 16);
    return value > 255 ? std::nullopt : std::optional(value);
}

std::string LabelOf(const std::string& name, const Color& color) {
    const bool isEmpty = name.find_first_not_of(' ') == std::string::npos;
    return isEmpty || name == noName || name == notJavaScript ? CodeOf(0, color, "") : name;
}

std::string ContrastOf(const std::string& textName, const Color& text, const std::string& groundName,
                       const Color& ground) {
    const double first = LightOf(text) + 0.05;
    const double second = LightOf(ground) + 0.05;
    const double ratio = first > second ? first / second : second / first;
    const char* grade = ratio < 3 ? "-" : ratio < 4.5 ? "AA 18 pt" : ratio < 7 ? "AA" : "AAA";
    std::array<char, 16> figure{};
    std::snprintf(figure.data(), figure.size(), "%.2f", std::floor(ratio * 100) / 100);
    return LabelOf(textName, text) + " on " + LabelOf(groundName, ground) + ": " + figure.data() + ":1, " +
           grade;
}
