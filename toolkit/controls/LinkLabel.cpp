#include "toolkit/controls/LinkLabel.h"

#include <windowsx.h>

#include <algorithm>
#include <cstdlib>

#include "toolkit/forms/Form.h"
#include "toolkit/platform/Contexts.h"
#include "toolkit/platform/Fonts.h"
#include "toolkit/platform/Painting.h"
#include "toolkit/platform/WindowText.h"

namespace {

constexpr int focusRoom = 2;  // around the text, in pixels at 96 DPI
constexpr UINT oneLine = DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;

bool IsPress(WPARAM key) { return key == VK_RETURN || key == VK_SPACE; }

bool IsRepeated(LPARAM keyState) { return (HIWORD(keyState) & KF_REPEAT) != 0; }

/// From 0 to 255.
int Brightness(COLORREF color) {
    return (299 * GetRValue(color) + 587 * GetGValue(color) + 114 * GetBValue(color)) / 1000;
}

/// The system's link colour, or its text colour where a link would be illegible.
COLORREF LinkColor() {
    constexpr int leastDifference = 100;
    const COLORREF link = ::GetSysColor(COLOR_HOTLIGHT);
    const int difference = Brightness(link) - Brightness(::GetSysColor(COLOR_BTNFACE));
    return std::abs(difference) < leastDifference ? ::GetSysColor(COLOR_BTNTEXT) : link;
}

}  // namespace

std::string LinkLabel::text() const { return WindowText(handle()); }

void LinkLabel::setText(std::string_view text) { SetTextOf(handle(), text); }

void LinkLabel::attached() {
    receive();
    underline(MessageFont(static_cast<int>(::GetDpiForWindow(handle()))));
}

LRESULT LinkLabel::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: paint(); return 0;
        case WM_SETFONT: underline(reinterpret_cast<HFONT>(wParam)); return 0;
        case WM_GETFONT: return reinterpret_cast<LRESULT>(font.get());
        case WM_NCHITTEST: return isOnText(point) ? HTCLIENT : HTTRANSPARENT;
        case WM_SETCURSOR: ::SetCursor(::LoadCursorW(nullptr, IDC_HAND)); return TRUE;
        case WM_GETDLGCODE: return IsPress(wParam) ? DLGC_WANTMESSAGE : 0;
        case WM_KEYDOWN:
            if (IsPress(wParam) && !IsRepeated(lParam) && isUsable()) Click.raise();
            return 0;
        case WM_LBUTTONDOWN: press(); return 0;
        case WM_LBUTTONUP: release(point); return 0;
        case WM_SETTEXT:
        case WM_SETFOCUS:
        case WM_KILLFOCUS: repaint(); break;
        default: break;
    }
    return Control::onMessage(message, wParam, lParam);
}

void LinkLabel::underline(HFONT plain) {
    font = Underlined(plain);
    repaint();
}

void LinkLabel::press() {
    if (!isUsable()) return;
    setFocus();
    ::SetCapture(handle());
}

void LinkLabel::release(POINT point) {
    if (::GetCapture() != handle()) return;
    ::ReleaseCapture();
    ::ClientToScreen(handle(), &point);
    if (isOnText(point)) Click.raise();
}

void LinkLabel::paint() const {
    const Painting painting(handle());
    const HDC context = painting.context();
    FillWithColor(context, painting.area(), ::GetSysColor(COLOR_BTNFACE));
    RECT area = textArea();
    {
        const Selected underlined(context, font.get());
        ::SetTextColor(context, LinkColor());
        ::DrawTextW(context, WideWindowText(handle()).c_str(), -1, &area, oneLine);
    }
    if (!hasFocus()) return;
    // Windows draws the dots in the difference of the context's two colours.
    ::SetTextColor(context, ::GetSysColor(COLOR_BTNTEXT));
    ::InflateRect(&area, form.scaled(focusRoom), form.scaled(focusRoom));
    ::DrawFocusRect(context, &area);
}

/// From the left and top of the label.
RECT LinkLabel::textArea() const {
    const WindowContext context(handle());
    RECT client{};
    ::GetClientRect(handle(), &client);
    const int room = form.scaled(focusRoom);
    RECT area = {room, room, client.right - room, client.bottom - room};
    const Selected underlined(context.get(), font.get());
    ::DrawTextW(context.get(), WideWindowText(handle()).c_str(), -1, &area, oneLine | DT_CALCRECT);
    area.right = std::min(area.right, client.right - room);
    return area;
}

bool LinkLabel::isOnText(POINT point) const {
    ::ScreenToClient(handle(), &point);
    const RECT area = textArea();
    return ::PtInRect(&area, point) != FALSE;
}
