#include "randomuser/OtherProgram.h"

#include <future>

#include "randomuser/Soon.h"

namespace {

constexpr UINT comeToFront = WM_APP + 1;

LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == comeToFront) ::SetForegroundWindow(window);
    if (message == WM_DESTROY) ::PostQuitMessage(0);
    return ::DefWindowProcA(window, message, wParam, lParam);
}

HWND CreateInFront() {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = Answer;
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    windowClass.lpszClassName = OtherProgram::className;
    ::RegisterClassA(&windowClass);
    return ::CreateWindowExA(0, OtherProgram::className, "another program",
                             WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 4, 4, 160, 60, nullptr,
                             nullptr, nullptr, nullptr);
}

void Run(std::promise<HWND> created) {
    created.set_value(CreateInFront());
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) ::DispatchMessageW(&message);
}

}  // namespace

OtherProgram::OtherProgram() {
    std::promise<HWND> created;
    std::future<HWND> result = created.get_future();
    thread = std::thread(Run, std::move(created));
    window = result.get();
    Soon([&] { return ::GetForegroundWindow() == window; });
}

OtherProgram::~OtherProgram() {
    letGo();
    ::PostMessageA(window, WM_CLOSE, 0, 0);
    thread.join();
}

void OtherProgram::takeForeground() const { ::PostMessageA(window, comeToFront, 0, 0); }

void OtherProgram::holdClipboard() {
    isHolding = Soon([] { return ::OpenClipboard(nullptr) != FALSE; });
}

void OtherProgram::letGo() {
    if (isHolding) ::CloseClipboard();
    isHolding = false;
}
