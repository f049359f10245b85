// What is a colour, and what is its packed form?
#pragma once

#include <cstdint>

/// A channel record: each channel is 0 to 255. Blue is declared before green; always name the fields.
struct Color {
    std::int32_t red = 0;
    std::int32_t blue = 0;
    std::int32_t green = 0;

    friend constexpr bool operator==(const Color&, const Color&) = default;
};

/// red + 256 x green + 65536 x blue: a Windows colour reference, red in the low byte.
using PackedColor = std::int32_t;

constexpr Color ColorOf(int red, int green, int blue) { return {.red = red, .blue = blue, .green = green}; }

constexpr PackedColor Pack(const Color& color) { return color.red + 256 * color.green + 65536 * color.blue; }

/// Divides as a signed number, rounding toward zero: -1 (a failed pixel read) is red 255, green 0, blue 0.
constexpr Color Unpack(PackedColor packed) {
    return ColorOf(packed & 255, (packed / 256) & 255, (packed / 65536) & 255);
}
