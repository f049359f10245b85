#include "tests/ui/Dialogs.h"

#include "tests/toolkit/WindowText.h"
#include "tests/ui/Wait.h"

namespace {

/// Whether keys go to a window of that thread.
bool HasKeys(DWORD thread) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    const HWND front = ::GetForegroundWindow();
    return ::GetWindowThreadProcessId(front, nullptr) == thread && ::GetGUIThreadInfo(thread, &info) &&
           info.hwndFocus != nullptr;
}

}  // namespace

std::string MessageOf(HWND dialog) {
    constexpr int messageText = 0xFFFF;
    return TextOf(::GetDlgItem(dialog, messageText));
}

void Answer(HWND dialog, int button) {
    constexpr DWORD longEnough = 2000;
    const HWND owner = ::GetWindow(dialog, GW_OWNER);
    const DWORD thread = ::GetWindowThreadProcessId(dialog, nullptr);
    ::PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, button)));
    Eventually([&] { return !::IsWindow(dialog); });
    // Keys that come before another window of the program is in front again go nowhere.
    if (owner) Eventually([&] { return !::IsWindow(owner) || HasKeys(thread); }, longEnough);
}
