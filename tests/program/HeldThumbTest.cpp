// Who paints a slider's thumb while it moves?
#include <string>
#include <vector>

#include "tests/program/MainWindowFixture.h"

namespace {

/// Keeps whether each new position of a slider was to be painted, for as long as the value lives. One at a
/// time.
class WatchedPositions {
public:
    explicit WatchedPositions(HWND slider) : slider(slider) {
        watching = this;
        before = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(slider, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Receive)));
    }
    WatchedPositions(const WatchedPositions&) = delete;
    WatchedPositions& operator=(const WatchedPositions&) = delete;
    ~WatchedPositions() { ::SetWindowLongPtrW(slider, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before)); }

    std::vector<bool> painted;

private:
    static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == SBM_SETSCROLLINFO) watching->painted.push_back(wParam != FALSE);
        return ::CallWindowProcW(watching->before, window, message, wParam, lParam);
    }

    inline static WatchedPositions* watching = nullptr;
    HWND slider;
    WNDPROC before = nullptr;
};

class HeldThumb : public ShownMainWindow {
protected:
    void drag(int value) const {
        ::SendMessageA(window.handle(), WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, value),
                       reinterpret_cast<LPARAM>(control(IDC_hsbGreen)));
    }
};

}  // namespace

TEST_F(HeldThumb, IsLeftToWindowsAsLongAsTheUserDragsIt) {
    const WatchedPositions watched(control(IDC_hsbGreen));
    ::SetCapture(control(IDC_hsbGreen));  // as Windows does when the thumb is pressed
    drag(77);
    ::ReleaseCapture();
    EXPECT_EQ(watched.painted, std::vector{false});
    EXPECT_EQ(state.marks.markColor[0], ColorOf(255, 77, 0));
}

TEST_F(HeldThumb, IsPaintedWhenAnotherProgramMovesIt) {
    const WatchedPositions watched(control(IDC_hsbGreen));
    drag(77);
    EXPECT_EQ(watched.painted, std::vector{true});
}

TEST_F(HeldThumb, IsPaintedWhenTheOtherSlidersFollow) {
    const WatchedPositions watched(control(IDC_hsbBlue));
    ::SetCapture(control(IDC_hsbGreen));
    scroll(IDC_hsbBlue, 77);
    ::ReleaseCapture();
    EXPECT_EQ(watched.painted, std::vector{true});
}
