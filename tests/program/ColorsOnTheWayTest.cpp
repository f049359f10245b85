// What is shown while one colour gives way to another?
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "mainwindow/frmMain.h"
#include "resources/resource.h"
#include "support/AppState.h"
#include "tests/driver/WindowText.h"
#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"

namespace {

WNDPROC unwatched = nullptr;
std::function<void()> afterPaint;  // once
std::vector<std::string> texts;

LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = ::CallWindowProcA(unwatched, window, message, wParam, lParam);
    if (message == WM_SETTEXT) texts.push_back(TextOf(window));
    if (message == WM_PAINT && afterPaint) std::exchange(afterPaint, nullptr)();
    return result;
}

/// A window's messages are seen for as long as the value lives.
class Watched {
public:
    explicit Watched(HWND window) : window(window) {
        texts.clear();
        unwatched = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Watch)));
    }
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
    ~Watched() { ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(unwatched)); }

private:
    HWND window;
};

class ColorsOnTheWay : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
        window.load();
        window.show(SW_SHOWNORMAL);
        window.activate();
        PumpUntil([&] { return ::GetForegroundWindow() == window.handle(); });
        PumpAll();
    }
    void TearDown() override {
        state.settings.promptToSave = 0;
        window.unload();
    }

    HWND control(int id) const { return ::GetDlgItem(window.handle(), id); }
    std::string preview() const { return TextOf(control(IDC_lblClipboard)); }
    HWND sample() const { return ::GetDlgItem(control(IDC_picSampleContainer), IDC_picSample); }
    void scroll(int slider, int value) const {
        ::SendMessageA(window.handle(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, value),
                       reinterpret_cast<LPARAM>(control(slider)));
    }
    void select(int mark) const { ::SendMessageA(control(IDC_optColor + mark), BM_CLICK, 0, 0); }
    /// Sets green; when that window is painted on the way, another program does what it wants.
    void overtakeAtPaintOf(HWND painted, std::function<void()> other) const {
        const Watched watching(painted);
        afterPaint = std::move(other);
        scroll(IDC_hsbGreen, 10);
        ASSERT_FALSE(afterPaint) << "nothing was painted on the way";
    }
    COLORREF backColor(int box) const {
        const HDC context = ::GetDC(control(box));
        ::SendMessageA(window.handle(), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(context),
                       reinterpret_cast<LPARAM>(control(box)));
        const COLORREF color = ::GetBkColor(context);
        ::ReleaseDC(control(box), context);
        return color;
    }

    AppState state;
    frmMain window{state};
};

}  // namespace

TEST_F(ColorsOnTheWay, AnOvertakenOneDoesNotComeBack) {
    overtakeAtPaintOf(sample(), [&] { scroll(IDC_hsbBlue, 77); });
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
    EXPECT_EQ(backColor(IDC_txtName + 2), ::GetSysColor(COLOR_WINDOW));
}

TEST_F(ColorsOnTheWay, OfASelectedMarkAreNotMixedWithThoseBefore) {
    const Watched watching(control(IDC_lblClipboard));
    select(2);
    EXPECT_EQ(texts, std::vector<std::string>{"#00FF00"});
}

TEST_F(ColorsOnTheWay, OfANewPaletteAreNotMixedWithThoseBefore) {
    select(2);
    const Watched watching(control(IDC_lblClipboard));
    ::SendMessageA(window.handle(), WM_COMMAND, IDM_mnuFileNew, 0);
    EXPECT_EQ(texts, std::vector<std::string>{"#FF0000"});
}
