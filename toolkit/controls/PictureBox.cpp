#include "toolkit/controls/PictureBox.h"

#include "toolkit/forms/Form.h"
#include "toolkit/platform/Mouse.h"
#include "toolkit/platform/Painting.h"
#include "toolkit/platform/WindowText.h"

namespace {

constexpr int roomToFrame = 3;  // from the edge to the frame, in pixels at 96 DPI

}  // namespace

void PictureBox::setBackColor(COLORREF color) {
    if (back == color) return;
    back = color;
    repaint();
}

void PictureBox::setText(std::string_view text) {
    if (spoken == text) return;
    spoken = text;
    SetTextOf(handle(), spoken);
}

void PictureBox::setFocusFrame(bool isWanted) {
    isFocusFramed = isWanted;
    repaint();
}

LRESULT PictureBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: paint(); return 0;
        // The text may hold a name that the user has typed: an ampersand in it is no access key.
        case WM_GETDLGCODE: return DLGC_WANTCHARS;
        case WM_UPDATEUISTATE: repaint(); break;
        case WM_CAPTURECHANGED: MouseCaptureLost.raise(); return 0;
        default: break;
    }
    if (isUsable()) raiseMouse(message, wParam);
    return Control::onMessage(message, wParam, lParam);
}

void PictureBox::paint() const {
    const Painting painting(handle());
    FillWithColor(painting.context(), painting.area(), backColor());
    if (!back) return;
    RECT area{};
    ::GetClientRect(handle(), &area);
    PaintEdge(painting.context(), area);
    if (!isFocusFramed) return;
    // Away from the edge, which may be black or white too.
    ::InflateRect(&area, -form.scaled(roomToFrame), -form.scaled(roomToFrame));
    PaintFocusFrame(handle(), painting.context(), area, form.scaled(1));
}

void PictureBox::paintNow() const {
    // Without a window this would paint other windows.
    if (handle()) ::UpdateWindow(handle());
}

void PictureBox::captureMouse() {
    // Without a window this would release another window's capture.
    if (handle()) ::SetCapture(handle());
}

void PictureBox::raiseMouse(UINT message, WPARAM wParam) const {
    if (message == WM_MOUSEMOVE) MouseMove.raise(HeldButtons(wParam));
    if (const int button = PressedButton(message)) MouseDown.raise(button);
    if (const int button = ReleasedButton(message)) MouseUp.raise(button);
}
