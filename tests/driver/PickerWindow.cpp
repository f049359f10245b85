#include "tests/driver/PickerWindow.h"

#include "resources/resource.h"
#include "tests/driver/Input.h"
#include "tests/driver/Posted.h"
#include "tests/driver/Tips.h"
#include "tests/driver/Wait.h"

PickerWindow::PickerWindow(const Huevox& huevox, const Grid& grid) : huevox(huevox), grid(grid) { open(); }

void PickerWindow::open() const {
    clickButton();
    EXPECT_TRUE(Eventually([&] { return window() && ::GetForegroundWindow() == window(); })) << grid.name;
    WaitForPosted(huevox);
}

void PickerWindow::clickButton() const { Click(huevox.control(grid.button)); }

POINT PickerWindow::middle(const Swatch& swatch) const {
    RECT area{};
    ::GetClientRect(swatches(), &area);
    return OnScreen(swatches(), {(2 * swatch.column + 1) * area.right / (2 * grid.columns),
                                 (2 * swatch.row + 1) * area.bottom / (2 * grid.rows)});
}

void PickerWindow::click(const Swatch& swatch) const { Click(middle(swatch)); }

void PickerWindow::hover(const Swatch& swatch) const { Hover(huevox, middle(swatch)); }

void PickerWindow::moveTo(int left, int top) const {
    ::SetWindowPos(window(), nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void PickerWindow::close() const {
    ::PostMessageA(window(), WM_CLOSE, 0, 0);
    EXPECT_BECOMES(window(), nullptr);
    EXPECT_BECOMES(::GetForegroundWindow(), huevox.window());
}

void ExpectClick(const Huevox& huevox, const PickerWindow& picker, const Swatch& swatch, const Color& color) {
    EXPECT_BECOMES(picker.colorAt(swatch), color);
    picker.click(swatch);
    EXPECT_BECOMES(huevox.sliders(), color) << swatch.column << ' ' << swatch.row;
}

void ExpectTip(const Huevox& huevox, const PickerWindow& picker, const Swatch& swatch, const char* tip) {
    ExpectTip(huevox, picker.middle(swatch), tip);
}

void ExpectNothingByTheRightButton(const Huevox& huevox, const PickerWindow& picker, const Swatch& swatch) {
    const Color before = huevox.sliders();
    RightClick(picker.middle(swatch));
    huevox.focusByClick(IDC_txtName);  // the input behind the click has arrived
    EXPECT_EQ(huevox.sliders(), before);
}
