// How does a test use one of the program's palette windows?
#pragma once

#include "resources/resource.h"
#include "tests/driver/Huevox.h"
#include "tests/driver/Input.h"

/// A swatch of a grid, counted from the left and top.
struct Swatch {
    int column;
    int row;
};

/// A grid of swatches in a window of its own.
class PickerWindow {
public:
    struct Grid {
        const char* name;  ///< the window's class
        int button;        ///< that opens it, in the main window
        int swatches;      ///< the id of the control
        int columns;
        int rows;
    };

    /// Clicks the main window's button and waits until the window is on the screen and in front.
    PickerWindow(const Huevox& huevox, const Grid& grid);

    HWND window() const { return huevox.form(grid.name); }
    HWND swatches() const { return ::GetDlgItem(window(), grid.swatches); }
    RECT place() const { return AreaOf(window()); }
    bool isEnabled() const { return ::IsWindowEnabled(window()) != FALSE; }

    /// The middle of a swatch on the screen.
    POINT middle(const Swatch& swatch) const;
    Color colorAt(const Swatch& swatch) const { return PaintedPixel(window(), middle(swatch)); }
    /// Presses and releases the left button on a swatch.
    void click(const Swatch& swatch) const;
    /// Moves the mouse away and then onto a swatch.
    void hover(const Swatch& swatch) const;

    /// Presses the button that opens the window.
    void clickButton() const;
    void moveTo(int left, int top) const;
    /// Closes the window and waits until it is gone and the main window is the one in front.
    void close() const;
    /// Opens it again.
    void open() const;

private:
    const Huevox& huevox;
    Grid grid;
};

/// Whether a button of the JavaScript window's tool bar is pressed.
inline bool IsPressed(HWND javaScript, int command) {
    return ::SendMessageA(::GetDlgItem(javaScript, IDC_tbrSortTools), TB_ISBUTTONCHECKED, command, 0) != 0;
}

/// The swatch shows the colour, and a click sets the sliders to it.
void ExpectClick(const Huevox& huevox, const PickerWindow& picker, const Swatch& swatch, const Color& color);
void ExpectTip(const Huevox& huevox, const PickerWindow& picker, const Swatch& swatch, const char* tip);
/// A right click on the swatch leaves the sliders as they are.
void ExpectNothingByTheRightButton(const Huevox& huevox, const PickerWindow& picker, const Swatch& swatch);

inline constexpr PickerWindow::Grid websafeGrid = {"frmWebsafe", IDC_cmdWebsafe, IDC_lblWebsafeColor, 36, 6};
inline constexpr PickerWindow::Grid failsafeGrid = {"frmFailsafe", IDC_cmdFailsafe, IDC_lblFailsafeColor, 16,
                                                    1};
inline constexpr PickerWindow::Grid javaScriptGrid = {"frmJavaScript", IDC_cmdJavaScript,
                                                      IDC_lblJavaScriptColor, 7, 20};
