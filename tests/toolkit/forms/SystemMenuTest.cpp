// What stands in a window's own menu after an item was added?
#include "toolkit/forms/SystemMenu.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"

namespace {

class SystemMenuTest : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
        form.load();
    }
    void TearDown() override { Form::unloadAll(); }

    HMENU menu() const { return ::GetSystemMenu(form.handle(), FALSE); }

    TestForm form;
};

constexpr int command = 0x9D00;

}  // namespace

TEST_F(SystemMenuTest, AddsAGroupWithOneItemAtTheEnd) {
    const int before = ::GetMenuItemCount(menu());
    AddToSystemMenu(form.handle(), command, "Always on &Top");
    ASSERT_EQ(::GetMenuItemCount(menu()), before + 2);
    EXPECT_TRUE(::GetMenuState(menu(), before, MF_BYPOSITION) & MF_SEPARATOR);
    std::array<wchar_t, 40> text{};
    ::GetMenuStringW(menu(), before + 1, text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
    EXPECT_STREQ(text.data(), L"Always on &Top");
    EXPECT_EQ(::GetMenuItemID(menu(), before + 1), static_cast<UINT>(command));
}

TEST_F(SystemMenuTest, ShowsACheckMarkWhileItIsOn) {
    AddToSystemMenu(form.handle(), command, "Always on &Top");
    const auto isChecked = [&] { return (::GetMenuState(menu(), command, MF_BYCOMMAND) & MF_CHECKED) != 0; };
    EXPECT_FALSE(isChecked());
    CheckInSystemMenu(form.handle(), command, true);
    EXPECT_TRUE(isChecked());
    CheckInSystemMenu(form.handle(), command, false);
    EXPECT_FALSE(isChecked());
}
