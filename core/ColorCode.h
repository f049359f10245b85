// How is a colour written as source code?
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/Color.h"

/// The twelve notations in the order of their format index, 0 to 11.
extern const std::array<std::string_view, 12> notationNames;

/// The colour (channels 0 to 255) in the notation of that format index; nothing for an index outside 0 to 11.
/// customFormat is the template of the last notation, "Custom".
std::optional<std::string> ColorCode(int formatIndex, const Color& color, std::string_view customFormat);

/// Replaces the ten placeholders one after another, each pass over the result of the one before: a
/// placeholder that an earlier replacement forms is expanded by a later one. Every other character is copied
/// as it is.
std::string ExpandCustomFormat(std::string_view customFormat, const Color& color);
