#include "tests/driver/Dialogs.h"

#include "tests/driver/Input.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

std::string MessageOf(HWND dialog) {
    constexpr int messageText = 0xFFFF;
    return TextOf(::GetDlgItem(dialog, messageText));
}

void Answer(HWND dialog, int button) {
    ASSERT_TRUE(::IsWindow(dialog)) << "nothing to answer";
    const HWND owner = ::GetWindow(dialog, GW_OWNER);
    const DWORD thread = ::GetWindowThreadProcessId(dialog, nullptr);
    ::PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, button)));
    EXPECT_TRUE(Eventually([&] { return !::IsWindow(dialog); }));
    // Keys that come before another window of the program is in front again go nowhere.
    if (owner) {
        EXPECT_TRUE(Eventually([&] { return !::IsWindow(owner) || TakesKeys(thread); }));
    }
}
