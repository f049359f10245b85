// How is one channel written as text, and read back from what a user typed?
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Color.h"

/// Entry i is i as exactly two upper-case hexadecimal digits, "00" to "FF": the only source of such digits.
extern const std::array<std::string_view, 256> HexPairs;

/// "#" and the pairs of red, green and blue.
std::string HexText(const Color& color);

/// Lower-cases the letters A to Z and leaves every other character as it is.
std::string LowerCased(std::string_view text);

/// Removes leading zeros while more than one character remains; "" stays "". Trims nothing else.
std::string_view StripLeadingZeros(std::string_view text);

/// Reads blanks, decimal digits, blanks. Returns 0 to 255, or -1 for any other text.
std::int16_t ParseChannelDecimal(std::string_view text);

/// Returns the two hexadecimal digits of text, trimmed and upper-cased, or "-1" when it is not exactly two.
std::string ValidateHexPair(std::string_view text);

/// Reads what ValidateHexPair accepts. Returns 0 to 255, or -1 for any other text.
std::int16_t ParseChannelHex(std::string_view text);
