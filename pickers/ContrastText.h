// What does the contrast window write and say of the marks?
#pragma once

#include <array>
#include <string>

#include "core/Color.h"
#include "support/Marks.h"

/// A mark as the window shows it.
struct LabelledMark {
    std::string label;  ///< its name, or for a mark without one the colour as "#" and six digits
    Color color;

    friend bool operator==(const LabelledMark&, const LabelledMark&) = default;
};

using LabelledMarkSet = std::array<LabelledMark, markCount>;

LabelledMarkSet LabelledMarks(const Palette& palette);

/// Such as "navy on white: 16.00:1, AAA".
std::string PairText(const LabelledMark& text, const LabelledMark& ground);

/// Of a cell that stands for one mark alone: its name and colour.
std::string MarkText(const LabelledMark& mark);
