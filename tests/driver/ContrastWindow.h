// How does a test use the window of the marks' contrast?
#pragma once

#include <string>

#include "resources/resource.h"
#include "tests/driver/Huevox.h"
#include "tests/driver/Input.h"
#include "tests/driver/Posted.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"
#include "toolkit/platform/Twips.h"

/// The middle of a cell on the screen.
inline POINT MiddleOfCell(HWND window, int row, int column) {
    const int dpi = static_cast<int>(::GetDpiForWindow(window));
    const auto scaled = [&](int length) { return PixelsFromTwips(length * twipsPerPixel, dpi); };
    return OnScreen(window, {scaled(142 + 101 * column + 49), scaled(47 + 26 * row + 12)});
}

/// The window, opened by its key. Places are those of a test's own ruler, in pixels at 96 DPI.
class ContrastWindow {
public:
    explicit ContrastWindow(const Huevox& huevox) : huevox(huevox) { open(); }

    HWND window() const { return huevox.form("frmContrast"); }
    HWND grid() const { return ::GetDlgItem(window(), IDC_grdContrast); }
    /// What a screen reader says of the cell under the frame.
    std::string told() const { return TextOf(grid()); }

    /// By its key, which the main window takes. A new one moves itself when it is activated.
    void open() const {
        Press(VK_F7);
        ASSERT_TRUE(Eventually([&] { return window() && ::GetForegroundWindow() == window(); }));
        WaitForPosted(huevox);
    }

    /// On the screen, without the edge.
    RECT cell(int row, int column) const {
        const int left = 142 + 101 * column;
        const int top = 47 + 26 * row;
        return onScreen({left + 2, top + 2, left + 97, top + 22});
    }
    RECT rowName(int row) const { return onScreen({12, 47 + 26 * row, 120, 71 + 26 * row}); }
    RECT columnName(int column) const { return onScreen({142 + 101 * column, 12, 241 + 101 * column, 29}); }
    RECT rowSample(int row) const { return onScreen({128, 49 + 26 * row, 134, 69 + 26 * row}); }
    RECT columnSample(int column) const { return onScreen({144 + 101 * column, 33, 239 + 101 * column, 39}); }
    RECT status() const { return onScreen({142, 207, 746, 224}); }

    POINT middle(int row, int column) const { return MiddleOfCell(window(), row, column); }

private:
    RECT onScreen(const Area& pixels) const {
        const int dpi = static_cast<int>(::GetDpiForWindow(window()));
        const auto scaled = [&](int length) { return PixelsFromTwips(length * twipsPerPixel, dpi); };
        const POINT start = OnScreen(window(), {scaled(pixels.left), scaled(pixels.top)});
        const POINT end = OnScreen(window(), {scaled(pixels.right), scaled(pixels.bottom)});
        return {start.x, start.y, end.x, end.y};
    }

    const Huevox& huevox;
};
