#include "pickers/ContrastPainter.h"

#include "core/Contrast.h"
#include "toolkit/platform/Fonts.h"
#include "toolkit/platform/Painting.h"
#include "toolkit/platform/Text.h"

namespace {

COLORREF ColorRef(const Color& color) { return static_cast<COLORREF>(Pack(color)); }

RECT RectOf(const Area& area) { return {area.left, area.top, area.right, area.bottom}; }

}  // namespace

ContrastPainter::ContrastPainter(HDC context, const Form& form, const LabelledMarkSet& marks)
    : context(context),
      form(form),
      marks(marks),
      font(context, MessageFont(form.scaled(USER_DEFAULT_SCREEN_DPI))) {
    ::SetBkMode(context, TRANSPARENT);
}

void ContrastPainter::paintHeadings() const {
    for (int mark = 0; mark < markCount; ++mark) {
        paintHeading(RowHeading(mark), mark, DT_RIGHT);
        paintHeading(ColumnHeading(mark), mark, DT_CENTER);
    }
}

void ContrastPainter::paintHeading(const HeadingPlaces& places, int mark, UINT side) const {
    if (mustPaint(places.name)) write(places.name, marks[mark].label, ::GetSysColor(COLOR_BTNTEXT), side);
    if (mustPaint(places.sample)) paintSample(places.sample, marks[mark].color);
}

void ContrastPainter::paintCells(const std::vector<Area>& cells) const {
    for (int cell = 0; cell < static_cast<int>(cells.size()); ++cell) {
        if (!mustPaint(cells[cell])) continue;
        const int row = cell / markCount;
        const int column = cell % markCount;
        paintSample(cells[cell], marks[column].color);
        if (row != column) paintPair(cells[cell], marks[row], marks[column]);
    }
}

void ContrastPainter::paintPair(const Area& cell, const LabelledMark& text,
                                const LabelledMark& ground) const {
    const double ratio = ContrastRatio(text.color, ground.color);
    const COLORREF color = ColorRef(text.color);
    write(RatioPlace(cell), RatioText(ratio), color, DT_RIGHT);
    write(GradePlace(cell), ContrastGrade(ratio), color, DT_LEFT);
}

void ContrastPainter::paintStatus(std::string_view text) const {
    if (mustPaint(ContrastStatus())) write(ContrastStatus(), text, ::GetSysColor(COLOR_BTNTEXT), DT_LEFT);
}

void ContrastPainter::paintSample(const Area& place, const Color& color) const {
    const RECT area = RectOf(form.scaled(place));
    FillWithColor(context, area, ColorRef(color));
    PaintEdge(context, area);
}

void ContrastPainter::write(const Area& place, std::string_view text, COLORREF color, UINT side) const {
    RECT area = RectOf(form.scaled(place));
    const std::wstring wide = Wide(text);
    ::SetTextColor(context, color);
    ::DrawTextW(context, wide.c_str(), static_cast<int>(wide.size()), &area,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | side);
}

bool ContrastPainter::mustPaint(const Area& place) const {
    const RECT area = RectOf(form.scaled(place));
    return ::RectVisible(context, &area) != FALSE;
}
