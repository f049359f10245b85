#include "toolkit/platform/WindowPlace.h"

Area AreaOf(const RECT& area) {
    return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.right),
            static_cast<int>(area.bottom)};
}

Area PlaceOf(HWND window) {
    RECT place{};
    ::GetWindowRect(window, &place);
    return AreaOf(place);
}

void PlaceAt(HWND window, const Area& place) {
    // Otherwise Windows cuts off a window that is larger than the screen.
    constexpr UINT uncut = SWP_NOSENDCHANGING;
    ::SetWindowPos(window, nullptr, place.left, place.top, place.width(), place.height(),
                   SWP_NOZORDER | SWP_NOACTIVATE | uncut);
}

void MoveTo(HWND window, const Area& place) {
    ::SetWindowPos(window, nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

Area WorkAreaAt(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    const DWORD otherwise = window ? MONITOR_DEFAULTTONEAREST : MONITOR_DEFAULTTOPRIMARY;
    ::GetMonitorInfoW(::MonitorFromWindow(window, otherwise), &monitor);
    return AreaOf(monitor.rcWork);
}

bool IsReachable(const Area& place) {
    const RECT caption = {place.left, place.top, place.right, place.top + ::GetSystemMetrics(SM_CYSMCAPTION)};
    return ::MonitorFromRect(&caption, MONITOR_DEFAULTTONULL) != nullptr;
}
