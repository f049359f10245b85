// Which colours are websafe, failsafe or JavaScript colours, and what are they called?
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/Color.h"

/// The reference colours. Within a group, entries with the same index describe the same colour. A
/// name-and-hex text is the name, one blank, "#" and six upper-case digits.
struct ColorTables {
    std::array<Color, 216> websafeChannels;  ///< blue runs fastest, then green, then red
    std::array<PackedColor, 216> websafeColor;

    std::array<PackedColor, 16> failsafeColor;
    std::array<std::string_view, 16> failsafeHex;

    std::array<PackedColor, 140> jsColor;  ///< alphabetical, as jsName and jsNameHex
    std::array<std::string_view, 140> jsName;
    std::array<std::string_view, 140> jsNameHex;

    std::array<PackedColor, 140> jsDotNetColor;  ///< by hue, as jsDotNetNameHex
    std::array<std::string_view, 140> jsDotNetNameHex;
};

/// Built by the compiler and kept in read-only memory: nothing can change them, and start-up costs nothing.
extern const ColorTables colorTables;

/// Membership is exact equality with an entry.
bool IsWebsafe(const Color& color);
bool IsFailsafe(const Color& color);
bool IsJavaScriptColor(const Color& color);

/// "W" for websafe, "F" for failsafe, "J" for a JavaScript colour, in that order: from "" to "WFJ".
std::string ColorPropertyLetters(const Color& color);

/// The JavaScript name of the colour, or "" when it has none. Where two names share a colour, it is the
/// second: "cyan", never "aqua"; "magenta", never "fuchsia".
std::string_view JavaScriptName(const Color& color);
