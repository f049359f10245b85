// A bare window with as many stock controls as Huevox has controls: what Windows alone takes for them.
#include "toolkit/platform/Platform.h"

namespace {

LRESULT CALLBACK StockProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DESTROY) return ::DefWindowProcA(window, message, wParam, lParam);
    ::PostQuitMessage(0);
    return 0;
}

struct Stock {
    const char* className;
    DWORD style;
    int count;
};

/// All in the font that Huevox uses.
void AddControls(HWND window, HINSTANCE instance) {
    const HFONT font = ::CreateFontA(-12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                                     CLEARTYPE_QUALITY, 0, "Segoe UI");
    constexpr Stock stocks[] = {{"ScrollBar", SBS_HORZ, 3},
                                {"Edit", WS_BORDER, 9},
                                {"Button", BS_AUTORADIOBUTTON, 8},
                                {"Button", BS_AUTOCHECKBOX, 2},
                                {"Button", BS_PUSHBUTTON, 4},
                                {"Button", BS_GROUPBOX, 3},
                                {"ListBox", LBS_NOTIFY, 1},
                                {"ToolbarWindow32", CCS_NORESIZE | CCS_NOPARENTALIGN, 1},
                                {"Static", 0, 21}};
    int place = 0;
    for (const Stock& stock : stocks) {
        for (int i = 0; i < stock.count; ++i, ++place) {
            const HWND control = ::CreateWindowExA(
                0, stock.className, "text", WS_CHILD | WS_VISIBLE | stock.style, 8 + place % 8 * 92,
                8 + place / 8 * 70, 84, 23, window, nullptr, instance, nullptr);
            ::SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        }
    }
}

}  // namespace

int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE /*hPrevInstance*/, LPSTR /*lpCmdLine*/, int nShowCmd) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    WNDCLASSA stock{};
    stock.lpfnWndProc = StockProc;
    stock.hInstance = hInstance;
    stock.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    stock.lpszClassName = "StockWindow";
    ::RegisterClassA(&stock);
    const HWND window = ::CreateWindowExA(0, "StockWindow", "Stock window",
                                          WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 100, 100,
                                          764, 552, nullptr, nullptr, hInstance, nullptr);
    AddControls(window, hInstance);
    ::ShowWindow(window, nShowCmd);
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
