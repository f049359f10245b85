// What are the six colour marks, and what was the palette when it was last new, opened or saved?
#pragma once

#include <array>
#include <string>

#include "core/Color.h"

inline constexpr int markCount = 6;

/// What a name box takes, in characters.
inline constexpr int longestName = 21;

using MarkNames = std::array<std::string, markCount>;
using MarkColors = std::array<Color, markCount>;

/// Six names and colours: what a file keeps.
struct Palette {
    MarkNames names;
    MarkColors colors;

    friend bool operator==(const Palette&, const Palette&) = default;
};

/// The current names are the texts of the name boxes and are not kept here.
struct Marks {
    int selectedMark = 0;
    MarkColors markColor;
    MarkColors savedMarkColor;
    MarkNames savedMarkName;
    MarkColors defaultMarkColor;
    MarkNames defaultMarkName;

    const Color& selectedColor() const { return markColor[selectedMark]; }
};

/// Fills the defaults: red, yellow, green, cyan, blue and magenta, none of them named.
void LoadDefaultMarks(Marks& marks);

/// Whether colours or names differ from the saved ones. The two placeholders count as equal names; every
/// other comparison is exact.
bool IsPaletteChanged(const Marks& marks, const MarkNames& names);
