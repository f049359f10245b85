// The smallest program with a window: what Huevox is measured against.
#include "toolkit/platform/Platform.h"

namespace {

LRESULT CALLBACK BareProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DESTROY) return ::DefWindowProcA(window, message, wParam, lParam);
    ::PostQuitMessage(0);
    return 0;
}

}  // namespace

int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE /*hPrevInstance*/, LPSTR /*lpCmdLine*/, int nShowCmd) {
    WNDCLASSA bare{};
    bare.lpfnWndProc = BareProc;
    bare.hInstance = hInstance;
    bare.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    bare.lpszClassName = "BareWindow";
    ::RegisterClassA(&bare);
    const HWND window = ::CreateWindowExA(0, "BareWindow", "Bare window",
                                          WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 100, 100,
                                          764, 552, nullptr, nullptr, hInstance, nullptr);
    ::ShowWindow(window, nShowCmd);
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
