#include "mainwindow/panels/PickShield.h"

#include "toolkit/platform/CaptureExclusion.h"

void PickShield::raise(HWND owner) {
    constexpr DWORD exStyle = WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_LAYERED;
    // Of Windows' own class: the window with the capture gets what comes.
    window = Owned<HWND, &::DestroyWindow>(::CreateWindowExW(
        exStyle, L"Static", L"", WS_POPUP | SS_NOTIFY, ::GetSystemMetrics(SM_XVIRTUALSCREEN),
        ::GetSystemMetrics(SM_YVIRTUALSCREEN), ::GetSystemMetrics(SM_CXVIRTUALSCREEN),
        ::GetSystemMetrics(SM_CYVIRTUALSCREEN), owner, nullptr, ::GetModuleHandleW(nullptr), nullptr));
    if (!window || !ExcludeFromCaptures(window.get())) return lower();
    constexpr BYTE barelyThere = 1;  // Windows passes a click through a window that is not there at all
    ::SetLayeredWindowAttributes(window.get(), 0, barelyThere, LWA_ALPHA);
    ::ShowWindow(window.get(), SW_SHOWNOACTIVATE);
}
