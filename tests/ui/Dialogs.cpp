#include "tests/ui/Dialogs.h"

#include "tests/toolkit/WindowText.h"
#include "tests/ui/Wait.h"

std::string MessageOf(HWND dialog) {
    constexpr int messageText = 0xFFFF;
    return TextOf(::GetDlgItem(dialog, messageText));
}

void Answer(HWND dialog, int button) {
    ::PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, button)));
    Eventually([&] { return !::IsWindow(dialog); });
}
