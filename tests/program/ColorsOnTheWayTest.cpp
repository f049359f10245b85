// What is shown while one colour gives way to another?
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/program/InsideWindow.h"
#include "tests/program/MainWindowFixture.h"
#include "tests/program/WatchedWindow.h"

namespace {

class ColorsOnTheWay : public ShownMainWindow {
protected:
    std::string preview() const { return TextOf(control(IDC_lblClipboard)); }
    void select(int mark) const { click(IDC_optColor + mark); }
    /// Sets green; when that window is painted on the way, another program does what it wants.
    void overtakeAtPaintOf(HWND painted, std::function<void()> other) const {
        const WatchedWindow watched(painted, std::move(other));
        scroll(IDC_hsbGreen, 10);
        ASSERT_GT(watched.paints, 0) << "nothing was painted on the way";
    }
};

}  // namespace

TEST_F(ColorsOnTheWay, AnOvertakenOneDoesNotComeBack) {
    overtakeAtPaintOf(sample(0), [&] { scroll(IDC_hsbBlue, 77); });
    EXPECT_EQ(state.marks.markColor[0], ColorOf(255, 10, 77));
    EXPECT_EQ(TextOf(control(IDC_txtSetBlue)), "77");
    EXPECT_EQ(preview(), "#FF0A4D");
}

TEST_F(ColorsOnTheWay, AnOvertakenOnesCodeDoesNotComeBack) {
    overtakeAtPaintOf(control(IDC_lblColorBar), [&] { scroll(IDC_hsbBlue, 77); });
    EXPECT_EQ(state.marks.markColor[0], ColorOf(255, 10, 77));
    EXPECT_EQ(preview(), "#FF0A4D");
}

TEST_F(ColorsOnTheWay, AnOvertakenOneHighlightsNoMarkThatIsSelectedMeanwhile) {
    ::SetWindowTextA(control(IDC_txtName + 2), "leaf");
    overtakeAtPaintOf(control(IDC_lblColorBar), [&] { select(2); });
    EXPECT_EQ(state.marks.selectedMark, 2);
    EXPECT_EQ(preview(), "#00FF00");
    EXPECT_EQ(BackColorOf(window.handle(), control(IDC_txtName + 2)), ::GetSysColor(COLOR_WINDOW));
}

TEST_F(ColorsOnTheWay, OfASelectedMarkAreNotMixedWithThoseBefore) {
    const WatchedWindow watched(control(IDC_lblClipboard));
    select(2);
    EXPECT_EQ(watched.texts, std::vector<std::string>{"#00FF00"});
}

TEST_F(ColorsOnTheWay, OfANewPaletteAreNotMixedWithThoseBefore) {
    select(2);
    const WatchedWindow watched(control(IDC_lblClipboard));
    command(IDM_mnuFileNew);
    EXPECT_EQ(watched.texts, std::vector<std::string>{"#FF0000"});
}
