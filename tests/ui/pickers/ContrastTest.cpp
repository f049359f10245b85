// What does the window of the marks' contrast show and say, and what can be done in it?
#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

#include "tests/driver/ContrastWindow.h"
#include "tests/driver/Legible.h"
#include "tests/driver/Tips.h"
#include "tests/driver/UiTest.h"

namespace {

class ContrastOfMarks : public UiTest {};

constexpr Color pureRed = ColorOf(255, 0, 0);
constexpr Color yellow = ColorOf(255, 255, 0);
constexpr Color lime = ColorOf(0, 255, 0);
constexpr Color blue = ColorOf(0, 0, 255);

int Distance(const Color& one, const Color& other) {
    return std::abs(one.red - other.red) + std::abs(one.green - other.green) +
           std::abs(one.blue - other.blue);
}

/// A cell shows the ground, and on it strokes of the text's colour. The edges of letters are smoothed.
void ExpectText(const ContrastWindow& contrast, int row, int column, const Color& text, const Color& ground) {
    EXPECT_BECOMES(LookAt(contrast.cell(row, column)).ground, ground) << row << ' ' << column;
    const auto isText = [&](const Color& pixel) {
        return 2 * Distance(pixel, text) < Distance(ground, text);
    };
    EXPECT_TRUE(Eventually([&] { return std::ranges::any_of(PixelsOf(contrast.cell(row, column)), isText); }))
        << row << ' ' << column;
}

void ExpectSelected(const Huevox& huevox, int mark, const Color& color) {
    EXPECT_BECOMES(huevox.isChecked(Option(mark)), true);
    EXPECT_BECOMES(huevox.sliders(), color);
    EXPECT_BECOMES(huevox.isEnabled(IDC_picSample + mark), true);
}

void ComeToMain(const Huevox& huevox) {
    huevox.focusByClick(IDC_lstAutocopy);
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
}

std::pair<int, int> Corner(HWND window) {
    const RECT place = AreaOf(window);
    return {place.left, place.top};
}

}  // namespace

TEST_F(ContrastOfMarks, OpensByKeyAndMenuAndThereIsOne) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    const HWND first = contrast.window();
    EXPECT_EQ(TextOf(first), "Contrast");
    EXPECT_EQ(::GetWindow(first, GW_OWNER), nullptr);
    EXPECT_TRUE(::GetWindowLongA(first, GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
    ComeToMain(huevox);
    contrast.open();
    EXPECT_EQ(contrast.window(), first);
    EXPECT_EQ(huevox.formCount("frmContrast"), 1);
    ComeToMain(huevox);
    Press('T', {VK_MENU});
    Press('N');
    EXPECT_BECOMES(::GetForegroundWindow(), first);
}

TEST_F(ContrastOfMarks, EscapeClosesItAndItComesBackToItsPlace) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    ::SetWindowPos(contrast.window(), nullptr, 50, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ASSERT_BECOMES(Corner(contrast.window()), (std::pair{50, 60}));
    Press(VK_ESCAPE);
    EXPECT_BECOMES(contrast.window(), nullptr);
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
    contrast.open();
    EXPECT_BECOMES(Corner(contrast.window()), (std::pair{50, 60}));
}

TEST_F(ContrastOfMarks, ShowsEachColorAsTextOnEachOther) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    ExpectText(contrast, 0, 4, pureRed, blue);
    ExpectText(contrast, 1, 0, yellow, pureRed);
    ExpectText(contrast, 1, 4, yellow, blue);
    ExpectText(contrast, 4, 1, blue, yellow);
    ExpectText(contrast, 2, 4, lime, blue);
    for (int mark = 0; mark < 6; ++mark) {
        EXPECT_BECOMES(LookAt(contrast.cell(mark, mark)).contrast, 1) << mark;
        EXPECT_BECOMES(LookAt(contrast.rowSample(mark)).ground, huevox.sample(mark));
        EXPECT_BECOMES(LookAt(contrast.columnSample(mark)).ground, huevox.sample(mark));
        EXPECT_TRUE(BecomesLegible(contrast.rowName(mark), legible));
        EXPECT_TRUE(BecomesLegible(contrast.columnName(mark), legible));
    }
    EXPECT_TRUE(BecomesLegible(contrast.status(), legible));
}

TEST_F(ContrastOfMarks, FollowsEachChangeOfAColor) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    SetColor(huevox, ColorOf(0, 0, 128));
    ExpectText(contrast, 1, 0, yellow, ColorOf(0, 0, 128));
    ExpectText(contrast, 0, 1, ColorOf(0, 0, 128), yellow);
    EXPECT_BECOMES(contrast.told(), "#000080 on #FFFF00: 14.90:1, AAA");
    EXPECT_BECOMES(LookAt(contrast.rowSample(0)).ground, ColorOf(0, 0, 128));
    EXPECT_BECOMES(LookAt(contrast.columnSample(0)).ground, ColorOf(0, 0, 128));
    huevox.selectMark(1);
    SetColor(huevox, white);
    EXPECT_BECOMES(contrast.told(), "#000080 on #FFFFFF: 16.00:1, AAA");
    ExpectText(contrast, 0, 1, ColorOf(0, 0, 128), white);
}

TEST_F(ContrastOfMarks, FollowsEachChangeOfAName) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    ASSERT_BECOMES(contrast.told(), "#FF0000 on #FFFF00: 3.72:1, AA 18 pt");
    huevox.retype(Name(0), "fire");
    EXPECT_BECOMES(contrast.told(), "fire on #FFFF00: 3.72:1, AA 18 pt");
    Press(VK_F5);
    EXPECT_BECOMES(contrast.told(), "red on yellow: 3.72:1, AA 18 pt");
    huevox.retype(Name(1), "");
    EXPECT_BECOMES(contrast.told(), "red on #FFFF00: 3.72:1, AA 18 pt");
}

TEST_F(ContrastOfMarks, FollowsAPaletteThatIsBegun) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    SetColor(huevox, white);
    ASSERT_BECOMES(contrast.told(), "#FFFFFF on #FFFF00: 1.07:1, -");
    Press('N', {VK_CONTROL});
    Answer(huevox.waitForDialog(), IDNO);
    EXPECT_BECOMES(contrast.told(), "#FF0000 on #FFFF00: 3.72:1, AA 18 pt");
    ExpectText(contrast, 1, 0, yellow, pureRed);
}

TEST_F(ContrastOfMarks, TheToolTipOfACellNamesThePairItsRatioAndGrade) {
    const Huevox huevox;
    huevox.retype(Name(4), "navy && co");
    const ContrastWindow contrast(huevox);
    ExpectTip(huevox, contrast.middle(4, 1), "navy && co on #FFFF00: 8.00:1, AAA");
    ExpectTip(huevox, contrast.middle(0, 4), "#FF0000 on navy && co: 2.14:1, -");
    ExpectTip(huevox, contrast.middle(4, 4), "navy && co #0000FF");
    ExpectTip(huevox, contrast.middle(5, 5), "#FF00FF");
    SetColor(huevox, white);
    ExpectTip(huevox, contrast.middle(0, 4), "#FFFFFF on navy && co: 8.59:1, AAA");
}

TEST_F(ContrastOfMarks, ALeftPressSelectsTheMarkOfTheRow) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    PressButton(contrast.middle(4, 1));
    ExpectSelected(huevox, 4, blue);
    ReleaseButton(contrast.middle(4, 1));
    EXPECT_BECOMES(contrast.told(), "#0000FF on #FFFF00: 8.00:1, AAA");
    Click(contrast.middle(2, 2));
    ExpectSelected(huevox, 2, lime);
    EXPECT_BECOMES(contrast.told(), "#00FF00");
    EXPECT_EQ(::GetForegroundWindow(), contrast.window());
    // As by the mark's own button, no name is taken for one that may not fit any more.
    EXPECT_EQ(huevox.backColor(Name(2)), white);
}

TEST_F(ContrastOfMarks, AMarkSelectedHereStaysWhenTheMainWindowComesBack) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    // Its button has the focus, and gets it back.
    huevox.selectMark(5);
    ASSERT_BECOMES(huevox.focused(), Option(5));
    Click(contrast.middle(4, 1));
    ExpectSelected(huevox, 4, blue);
    Click(huevox.barStepPlace(128));
    EXPECT_BECOMES(huevox.sliders(), ColorOf(128, 128, 255));
    EXPECT_TRUE(huevox.isChecked(Option(4)));
    EXPECT_EQ(huevox.sample(5), ColorOf(255, 0, 255));
}

TEST_F(ContrastOfMarks, NothingElseSelects) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    RightClick(contrast.middle(3, 1));
    const RECT name = contrast.rowName(5);
    Click(POINT{name.left + 2, name.top + 2});
    Click(POINT{contrast.cell(2, 3).right + 3, contrast.middle(2, 3).y});
    Click(contrast.middle(1, 0));  // arrives behind them
    ExpectSelected(huevox, 1, yellow);
    EXPECT_BECOMES(contrast.told(), "#FFFF00 on #FF0000: 3.72:1, AA 18 pt");
}

TEST_F(ContrastOfMarks, KeysMoveOverTheCellsAndSelect) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    Press(VK_DOWN);
    Press(VK_DOWN);
    EXPECT_BECOMES(contrast.told(), "#00FF00 on #FFFF00: 1.27:1, -");
    EXPECT_EQ(huevox.sliders(), pureRed);
    Press(VK_SPACE);
    ExpectSelected(huevox, 2, lime);
    Press(VK_END);
    EXPECT_BECOMES(contrast.told(), "#00FF00 on #FF00FF: 2.28:1, -");
    Press(VK_HOME);
    Press(VK_UP);
    Press(VK_RIGHT);
    Press(VK_RIGHT);
    Press(VK_LEFT);
    Press(VK_RETURN);
    ExpectSelected(huevox, 1, yellow);
    EXPECT_BECOMES(contrast.told(), "#FFFF00");
    EXPECT_EQ(huevox.focused(), IDC_grdContrast);
}

TEST_F(ContrastOfMarks, TheFrameIsSeenWhereTheKeysAreAndNowhereElse) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    const auto line = [&](int row, int column) {
        const RECT cell = contrast.cell(row, column);
        const int aside = (cell.bottom - cell.top) / 10;
        return Pixel({cell.left - aside, (cell.top + cell.bottom) / 2});
    };
    EXPECT_BECOMES(line(0, 1), ColorOf(0, 0, 0));
    Press(VK_RIGHT);
    EXPECT_BECOMES(line(0, 2), ColorOf(0, 0, 0));
    EXPECT_BECOMES(line(0, 1), Pixel({contrast.cell(1, 1).left - 2, contrast.middle(1, 1).y}));
}

TEST_F(ContrastOfMarks, TakesNoInputWhileAMessageWaits) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    const HWND message = BringRefusal(huevox);
    ASSERT_TRUE(message);
    EXPECT_FALSE(::IsWindowEnabled(contrast.window()));
    Click(contrast.middle(4, 1));
    Click(::GetDlgItem(message, IDOK));  // arrives behind the click on the cell
    EXPECT_BECOMES(::IsWindowEnabled(contrast.window()) != FALSE, true);
    EXPECT_EQ(huevox.isChecked(Option(0)), true);
    EXPECT_EQ(contrast.told(), "#FF0000 on #FFFF00: 3.72:1, AA 18 pt");
}

TEST_F(ContrastOfMarks, GoesWithTheMainWindow) {
    const Huevox huevox;
    const ContrastWindow contrast(huevox);
    Close(huevox);
}
