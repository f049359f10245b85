#include "tests/driver/OptionsDialog.h"

#include "tests/driver/Input.h"
#include "tests/driver/Wait.h"

OptionsDialog::OptionsDialog(const Huevox& huevox) : huevox(huevox) { open(); }

void OptionsDialog::open() const {
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
    Press(VK_F9);
    waitUntilUsable();
}

void OptionsDialog::waitUntilUsable() const {
    ASSERT_TRUE(Eventually([&] {
        return window() && ::GetForegroundWindow() == window() && focused() == IDC_lstStandardFormat &&
               format() >= 0;
    }));
}

int OptionsDialog::format() const {
    return static_cast<int>(::SendMessageA(control(IDC_lstStandardFormat), LB_GETCURSEL, 0, 0));
}

void OptionsDialog::choose(int format) const {
    const HWND list = control(IDC_lstStandardFormat);
    const auto height = static_cast<int>(::SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
    Click(OnScreen(list, {20, format * height + height / 2}));
    ASSERT_BECOMES(this->format(), format);
}

void OptionsDialog::turnOn(int option) const {
    RECT area{};
    ::GetClientRect(control(option), &area);
    Click(OnScreen(control(option), {area.bottom / 2, area.bottom / 2}));
    ASSERT_BECOMES(isOn(option), true) << option;
}

void OptionsDialog::close(int button) const {
    Click(control(button));
    waitForReturn();
}

void OptionsDialog::waitForReturn() const {
    EXPECT_TRUE(Eventually([&] {
        return !window() && ::GetForegroundWindow() == huevox.window() && huevox.focus() != nullptr;
    }));
}

HWND OptionsDialog::openPicker() const {
    constexpr int tree = 14145;
    Press('H', {VK_MENU});
    const HWND picker = huevox.waitForDialog();
    EXPECT_TRUE(Eventually([&] {
        return ::GetForegroundWindow() == picker && huevox.focus() == ::GetDlgItem(picker, IDOK) &&
               ::SendMessageA(::GetDlgItem(picker, tree), TVM_GETCOUNT, 0, 0) > 0;
    }));
    return picker;
}

void OptionsDialog::leavePicker(HWND picker, WORD key) const {
    Press(key);
    EXPECT_TRUE(Eventually([&] {
        return !::IsWindow(picker) && ::GetForegroundWindow() == window() && focused() == IDC_cmdChange;
    }));
}
