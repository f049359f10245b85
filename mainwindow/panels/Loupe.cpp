#include "mainwindow/panels/Loupe.h"

#include <algorithm>
#include <array>
#include <utility>

#include "toolkit/forms/Form.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/platform/CaptureExclusion.h"
#include "toolkit/platform/SystemFunction.h"
#include "toolkit/platform/Trap.h"
#include "toolkit/platform/WindowPlace.h"
#include "toolkit/platform/WindowText.h"

namespace {

constexpr std::array magnifications = {4, 8, 16};
constexpr int fromBlock = 16;  // in pixels at 96 DPI
constexpr UINT_PTR uncoveredTimer = 1;
constexpr UINT untilOthersHavePainted = 60;  // milliseconds

struct Monitor {
    Area area;
    int dpi = USER_DEFAULT_SCREEN_DPI;
};

Monitor MonitorAt(POINT place) {
    const HMONITOR monitor = ::MonitorFromPoint(place, MONITOR_DEFAULTTONEAREST);
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(monitor, &info);
    using DpiForMonitor = HRESULT WINAPI(HMONITOR, int, UINT*, UINT*);
    auto* const dpiForMonitor = SystemFunction<DpiForMonitor>("shcore.dll", "GetDpiForMonitor");
    constexpr int effective = 0;
    UINT across = USER_DEFAULT_SCREEN_DPI;
    UINT down = USER_DEFAULT_SCREEN_DPI;
    dpiForMonitor(monitor, effective, &across, &down);
    return {AreaOf(info.rcMonitor), static_cast<int>(across)};
}

Area BlockAt(POINT pointer) {
    const auto x = static_cast<int>(pointer.x) - PixelBlock::reach;
    const auto y = static_cast<int>(pointer.y) - PixelBlock::reach;
    return {x, y, x + PixelBlock::side, y + PixelBlock::side};
}

bool AreApart(const Area& one, const Area& other) {
    return one.right <= other.left || other.right <= one.left || one.bottom <= other.top ||
           other.bottom <= one.top;
}

Area Around(const Area& one, const Area& other) {
    return {std::min(one.left, other.left), std::min(one.top, other.top), std::max(one.right, other.right),
            std::max(one.bottom, other.bottom)};
}

/// The display may tell only later that the loupe is gone from there.
void PaintBelow(HWND form, const Area& screen) {
    RECT part = {screen.left, screen.top, screen.right, screen.bottom};
    ::MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&part), 2);
    ::RedrawWindow(form, &part, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void RegisterLoupeClass(WNDPROC proc) {
    WNDCLASSW own{};
    own.lpfnWndProc = proc;
    own.hInstance = ::GetModuleHandleW(nullptr);
    own.hCursor = ::LoadCursorW(nullptr, IDC_CROSS);
    own.lpszClassName = L"frmLoupe";
    ::RegisterClassW(&own);
}

}  // namespace

void Loupe::show(POINT at, const LoupeContent& shown) {
    const bool isNewText = shown.code != content.code || shown.name != content.name;
    const bool isNewPicture = shown != content;
    pointer = at;
    if (isNewPicture) content = shown;
    if (!window) create();
    if (!window) return;  // a pick needs no loupe
    if (isNewText) SetTextOf(window.get(), content.spoken());
    place(isNewPicture);
}

void Loupe::create() {
    RegisterLoupeClass(&Loupe::proc);
    window = Owned<HWND, &::DestroyWindow>(::CreateWindowExW(
        WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, L"frmLoupe", Wide(content.spoken()).c_str(),
        WS_POPUP | WS_DISABLED, 0, 0, 0, 0, form.handle(), nullptr, ::GetModuleHandleW(nullptr), this));
    textWidth = 0;
    uncovered.reset();
    isExcluded = window && ExcludeFromCaptures(window.get());
}

/// A picture that stays the same, as over an even ground, is moved and not painted once more.
void Loupe::place(bool isNewPicture) {
    const LoupeSize sizeBefore = layout().size;
    const Monitor monitor = MonitorAt(pointer);
    if (std::exchange(dpi, monitor.dpi) != monitor.dpi) textWidth = 0;
    textWidth = std::max(textWidth, TextWidth(window.get(), content, dpi));
    const LoupeSize size = layout().size;
    const Area area =
        LoupePlace(BlockAt(pointer), size, ::MulDiv(fromBlock, dpi, USER_DEFAULT_SCREEN_DPI), monitor.area);
    if (area != PlaceOf(window.get())) leave();
    ::SetWindowPos(window.get(), HWND_TOPMOST, area.left, area.top, area.width(), area.height(),
                   SWP_NOACTIVATE | SWP_NOSENDCHANGING | SWP_SHOWWINDOW);
    if (isNewPicture || size != sizeBefore) ::InvalidateRect(window.get(), nullptr, FALSE);
    ::UpdateWindow(window.get());  // a hand that never rests would keep it from being painted
}

LoupeLayout Loupe::layout() const { return {magnifications.at(zoom), dpi, textWidth}; }

void Loupe::magnify(int wheel) {
    wheelRest += wheel;
    const int steps = wheelRest / WHEEL_DELTA;
    wheelRest -= steps * WHEEL_DELTA;
    zoom = std::clamp(zoom + steps, 0, static_cast<int>(magnifications.size()) - 1);
    if (window && steps != 0) place(true);
}

void Loupe::stepAside(POINT at) {
    if (!window || isExcluded) return;
    if (!AreApart(BlockAt(at), PlaceOf(window.get()))) {
        leave();
        ::ShowWindow(window.get(), SW_HIDE);
    }
    if (uncovered && !AreApart(BlockAt(at), *uncovered)) PaintBelow(form.handle(), BlockAt(at));
    YieldToScreen();  // a hand that never rests would keep the rest of the window from being painted
}

/// Others paint what it covers soon.
void Loupe::leave() {
    if (isExcluded) return;
    const Area left = PlaceOf(window.get());
    uncovered = uncovered ? Around(*uncovered, left) : left;
    ::SetTimer(window.get(), uncoveredTimer, untilOthersHavePainted, nullptr);
}

LRESULT CALLBACK Loupe::proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* created = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created->lpCreateParams));
    }
    auto* const self = reinterpret_cast<Loupe*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self || self->window.get() != window) return ::DefWindowProcW(window, message, wParam, lParam);
    return TrappedAnswer([&] { return self->onMessage(message, wParam, lParam); });
}

LRESULT Loupe::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND self = window.get();
    switch (message) {
        case WM_PAINT: PaintLoupe(self, layout(), content); return 0;
        case WM_ERASEBKGND: return TRUE;
        case WM_NCHITTEST: return HTTRANSPARENT;
        case WM_DPICHANGED: return 0;  // its size goes by the monitor that the pointer is on
        case WM_TIMER:
            ::KillTimer(self, uncoveredTimer);
            uncovered.reset();
            Uncovered.raise();
            return 0;
        case WM_NCDESTROY: window.release(); break;  // together with its form
        default: break;
    }
    return ::DefWindowProcW(self, message, wParam, lParam);
}
