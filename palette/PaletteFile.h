// What does a palette file look like, and what is read back from one?
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "support/Marks.h"

/// The palette as a file keeps it: the placeholder for "no JavaScript colour" becomes that for "no name".
Palette AsSaved(Palette palette);

/// The text of a file: the marks, then each of them in every notation; every line ends in CR LF. Channels are
/// 0 to 255; no name contains CR LF.
std::string WritePaletteFile(const Palette& palette, std::string_view customFormat);

/// The most lines that the reader looks at in any of the four generations.
inline constexpr std::size_t linesLookedAt = 46;

/// The palette of a file of any of the four generations; nothing when it is none of them. Names are cut to
/// what a name box takes; channels of the current generation, which are not checked, are limited to 0..255.
std::optional<Palette> ParsePaletteLines(std::span<const std::string_view> lines);
