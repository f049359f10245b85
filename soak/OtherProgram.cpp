#include "soak/OtherProgram.h"

#include "tests/ui/Wait.h"

OtherProgram::OtherProgram()
    : window(::CreateWindowExA(0, "Static", "another program", WS_POPUP | WS_VISIBLE, 4, 4, 40, 40, nullptr,
                               nullptr, nullptr, nullptr)) {
    answer();
}

OtherProgram::~OtherProgram() {
    letGo();
    ::DestroyWindow(window);
}

void OtherProgram::takeForeground() const { ::SetForegroundWindow(window); }

void OtherProgram::holdClipboard() {
    isHolding = Eventually([&] { return ::OpenClipboard(window) != FALSE; });
}

void OtherProgram::letGo() {
    if (isHolding) ::CloseClipboard();
    isHolding = false;
}

void OtherProgram::answer() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageA(&message);
}
