// What stands in the boxes for the values of a colour?
#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/Color.h"
#include "randomuser/model/Look.h"

/// The three boxes with the button Set and the options Dec and Hex.
class Values {
public:
    bool canSet() const { return isSetEnabled; }
    /// Nothing when a value is refused.
    std::optional<Color> typed() const;
    const char* refusal() const;
    void tell(Look& look) const;

    void show(const Color& color);
    void type(int channel, const std::string& text);
    /// What was typed has been taken, or refused.
    void endTyping();
    /// Whether that was a change.
    bool setMode(bool wantsDecimal);

private:
    std::array<std::string, 3> values = {};
    bool isSetEnabled = false;
    bool isModeLocked = false;
    bool isDecimal = true;
};
