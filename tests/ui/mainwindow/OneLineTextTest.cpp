// Does the text of a one-line box stand in the middle of the box, and is all of the box one to the user? Run
// at several scalings.
#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "tests/driver/FormatDialog.h"
#include "tests/driver/UiTest.h"

namespace {

class OneLineText : public UiTest {};

constexpr int edge = 2;  // of a box, in pixels at every scaling

/// Rows from the top, the last one too; {-1, -1} when there are none.
using Rows = std::pair<int, int>;

/// The rows in which not all pixels have the colour of the first.
Rows InkIn(const std::vector<Color>& pixels, int width) {
    Rows rows = {-1, -1};
    for (int at = 0; at < static_cast<int>(pixels.size()); ++at) {
        if (pixels[at] == pixels.front()) continue;
        if (rows.first < 0) rows.first = at / width;
        rows.second = at / width;
    }
    return rows;
}

/// A line of text as Windows draws it: the height of any line, and the rows that this one covers.
struct Line {
    int height;
    Rows ink;
};

Line LineOf(std::string_view text) {
    constexpr int width = 200;
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const int points = ::MulDiv(9, ::GetDeviceCaps(screen, LOGPIXELSY), 72);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, width, 2 * points);
    const HFONT font = ::CreateFontA(-points, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0,
                                     CLEARTYPE_QUALITY, 0, "Segoe UI");
    const HGDIOBJ bitmapBefore = ::SelectObject(memory, bitmap);
    const HGDIOBJ fontBefore = ::SelectObject(memory, font);
    ::PatBlt(memory, 0, 0, width, 2 * points, WHITENESS);
    ::TextOutA(memory, points, 0, text.data(), static_cast<int>(text.size()));
    TEXTMETRICA metrics{};
    ::GetTextMetricsA(memory, &metrics);
    const Line line = {metrics.tmHeight, InkIn(PixelsIn(memory, {0, 0, width, 2 * points}), width)};
    ::SelectObject(memory, fontBefore);
    ::SelectObject(memory, bitmapBefore);
    ::DeleteObject(font);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return line;
}

/// As much room above the line as below it.
void ExpectInTheMiddle(HWND box, std::string_view text) {
    const Line line = LineOf(text);
    ASSERT_GT(line.ink.second, line.ink.first);
    const RECT inside = AreaOf(box, edge);
    int above = 0;
    int below = 0;
    EXPECT_TRUE(Eventually([&] {
        const auto [first, last] = InkIn(PixelsOf(inside), inside.right - inside.left);
        above = first - line.ink.first;
        below = inside.bottom - inside.top - above - line.height;
        return last - first == line.ink.second - line.ink.first && std::abs(above - below) <= 1;
    })) << text
        << ": " << above << " pixels above, " << below << " below";
}

/// The pixels of the rows directly below the upper edge and above the lower one, without the outermost.
std::vector<Color> OuterRows(HWND box) {
    const RECT inside = AreaOf(box, edge);
    std::vector<Color> rows = PixelsOf({inside.left, inside.top, inside.right, inside.top + 1});
    const std::vector<Color> last = PixelsOf({inside.left, inside.bottom - 1, inside.right, inside.bottom});
    rows.insert(rows.end(), last.begin(), last.end());
    return rows;
}

void ExpectOuterRows(HWND box, const Color& color) {
    EXPECT_BECOMES(OuterRows(box), std::vector(OuterRows(box).size(), color));
}

}  // namespace

TEST_F(OneLineText, StandsInTheMiddleOfNamesAndValues) {
    const Huevox huevox;
    huevox.focusSlider(IDC_hsbRed);  // no caret in any box
    ExpectInTheMiddle(huevox.control(Name(0)), "Type a colour name");
    ExpectInTheMiddle(huevox.control(Name(5)), "Type a colour name");
    ExpectInTheMiddle(huevox.control(IDC_txtSetRed), "255");
}

TEST_F(OneLineText, StandsInTheMiddleOfTheTemplate) {
    StoreText("CustomFormat", "dgypA");
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    Press(VK_TAB);
    ASSERT_BECOMES(dialog.focused(), IDC_cmdUR);
    ExpectInTheMiddle(dialog.control(IDC_txtFormat), "dgypA");
    Press(VK_ESCAPE);
    dialog.waitForEnd();
}

TEST_F(OneLineText, ABoxHasItsColorUpToItsEdges) {
    const Huevox huevox;
    const HWND box = huevox.control(Name(0));
    ExpectOuterRows(box, white);
    huevox.retype(Name(0), "sky");
    SetColor(huevox, ColorOf(1, 2, 3));
    ExpectOuterRows(box, highlight);
    huevox.focusByClick(Name(0));
    ExpectOuterRows(box, highlight);
    Press(VK_F5);
    ExpectOuterRows(box, white);
}

TEST_F(OneLineText, AClickAboveOrBelowTheTextIsOneIntoTheBox) {
    const Huevox huevox;
    for (const int mark : {0, 1}) {
        const RECT inside = AreaOf(huevox.control(Name(mark)), edge);
        Click({inside.left + 9, mark == 0 ? inside.top : inside.bottom - 1});
        EXPECT_BECOMES(huevox.focused(), Name(mark));
        EXPECT_BECOMES(huevox.selection(Name(mark)), (std::pair{0, 18}));
    }
}
