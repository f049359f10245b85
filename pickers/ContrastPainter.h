// What does the contrast window look like?
#pragma once

#include <string_view>
#include <vector>

#include "pickers/ContrastPlaces.h"
#include "pickers/ContrastText.h"
#include "toolkit/forms/Form.h"
#include "toolkit/platform/Contexts.h"

/// Paints the parts of the window that have changed; whatever else stands there stays.
class ContrastPainter {
public:
    ContrastPainter(HDC context, const Form& form, const LabelledMarkSet& marks);

    void paintHeadings() const;
    void paintCells(const std::vector<Area>& cells) const;
    void paintStatus(std::string_view text) const;

private:
    void paintHeading(const HeadingPlaces& places, int mark, UINT side) const;
    void paintSample(const Area& place, const Color& color) const;
    void paintPair(const Area& cell, const LabelledMark& text, const LabelledMark& ground) const;
    void write(const Area& place, std::string_view text, COLORREF color, UINT side) const;
    bool mustPaint(const Area& place) const;

    HDC context;
    const Form& form;
    const LabelledMarkSet& marks;
    Selected font;
};
