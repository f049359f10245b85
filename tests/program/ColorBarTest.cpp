// How often does the bar paint itself for one click?
#include "tests/program/MainWindowFixture.h"
#include "tests/program/WatchedWindow.h"

namespace {

class ColorBarPainting : public ShownMainWindow {
protected:
    void clickStep(int step) const {
        const LPARAM place = MAKELPARAM((step * 731 + 127) / 255, 10);
        ::SendMessageA(control(IDC_lblColorBar), WM_LBUTTONDOWN, MK_LBUTTON, place);
        ::SendMessageA(control(IDC_lblColorBar), WM_LBUTTONUP, 0, place);
        PumpAll();
    }
};

}  // namespace

TEST_F(ColorBarPainting, OnceForAClickThatChangesAllThreeSliders) {
    scroll(IDC_hsbRed, 100);
    scroll(IDC_hsbGreen, 150);
    scroll(IDC_hsbBlue, 200);
    PumpAll();
    const WatchedWindow bar(control(IDC_lblColorBar));
    clickStep(60);
    EXPECT_EQ(state.marks.markColor[0], ColorOf(60, 110, 160));
    EXPECT_EQ(bar.paints, 1);
}
