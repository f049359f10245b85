// How is a colour written as source code?
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/Color.h"

struct Notation {
    std::string_view caption;
    std::string (*render)(const Color& color);  ///< nullptr for "Custom", which expands the user's template
};

/// A notation's place is its format index. The last is "Custom".
extern const std::array<Notation, 12> notations;
inline constexpr int notationCount = static_cast<int>(std::tuple_size_v<decltype(notations)>);
inline constexpr int customNotation = notationCount - 1;

/// The colour (channels 0 to 255) in the notation of that format index; nothing when none has it.
/// customFormat is the template of "Custom".
std::optional<std::string> ColorCode(int formatIndex, const Color& color, std::string_view customFormat);

/// Replaces the ten placeholders one after another, each pass over the result of the one before: a
/// placeholder that an earlier replacement forms is expanded by a later one. Every other character is copied
/// as it is.
std::string ExpandCustomFormat(std::string_view customFormat, const Color& color);
