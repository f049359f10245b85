// A tool bar's choices: of neighbours one is pressed.
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/controls/ToolBar.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "resources/resource.h"
#include "tests/toolkit/TestForm.h"
#include "toolkit/forms/MessageLoop.h"

namespace {

constexpr std::array<ToolButton, 2> choices = {{
    {IDM_firstChoice, IDI_Save, "first", true},
    {IDM_secondChoice, IDI_Find, "second", true},
}};

class ToolBarChoices : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
        form.tbrTest.ButtonClick.bind([&](int command) {
            chosen.push_back(command);
            isPressedAtClick = form.tbrTest.isPressed(command);
        });
        form.load();
    }
    void TearDown() override { form.unload(); }

    void click(int command) {
        RECT area{};
        ::SendMessageA(form.tbrTest.handle(), TB_GETRECT, command, reinterpret_cast<LPARAM>(&area));
        const LPARAM point = MAKELPARAM(area.left + 3, area.top + 3);
        ::SendMessageA(form.tbrTest.handle(), WM_LBUTTONDOWN, MK_LBUTTON, point);
        ::SendMessageA(form.tbrTest.handle(), WM_LBUTTONUP, 0, point);
    }

    bool isFirst() const { return form.tbrTest.isPressed(IDM_firstChoice); }
    bool isSecond() const { return form.tbrTest.isPressed(IDM_secondChoice); }

    std::vector<int> chosen;
    bool isPressedAtClick = false;
    TwipsForm form;
};

}  // namespace

TEST_F(ToolBarChoices, NoneIsPressedAtFirst) {
    form.tbrTest.fill(choices);
    EXPECT_FALSE(isFirst());
    EXPECT_FALSE(isSecond());
}

TEST_F(ToolBarChoices, IsFilledWithOneOfThemPressedAndRaisesNothing) {
    form.tbrTest.fill(choices, IDM_secondChoice);
    EXPECT_FALSE(isFirst());
    EXPECT_TRUE(isSecond());
    EXPECT_TRUE(chosen.empty());
}

TEST_F(ToolBarChoices, AClickPressesBeforeItRaises) {
    form.tbrTest.fill(choices, IDM_secondChoice);
    click(IDM_firstChoice);
    EXPECT_TRUE(isPressedAtClick);
    EXPECT_FALSE(isSecond());
}

TEST_F(ToolBarChoices, AClickOnThePressedOneLeavesItPressed) {
    form.tbrTest.fill(choices);
    click(IDM_secondChoice);
    click(IDM_secondChoice);
    EXPECT_TRUE(isSecond());
    EXPECT_FALSE(isFirst());
}

TEST_F(ToolBarChoices, ANewWindowHasNonePressed) {
    form.tbrTest.fill(choices, IDM_firstChoice);
    form.unload();
    EXPECT_FALSE(isFirst());
    form.load();
    form.tbrTest.fill(choices);
    EXPECT_FALSE(isFirst());
}

TEST_F(ToolBarChoices, TheArrowKeysStopAtTheEnds) {
    form.tbrTest.fill(choices);
    const auto press = [&](WPARAM key, int times) {
        for (int time = 0; time < times; ++time) ::SendMessageA(form.tbrTest.handle(), WM_KEYDOWN, key, 0);
    };
    ::SendMessageA(form.tbrTest.handle(), WM_SETFOCUS, 0, 0);
    press(VK_RIGHT, 3);
    press(VK_SPACE, 1);
    EXPECT_TRUE(isSecond());
    press(VK_LEFT, 3);
    press(VK_SPACE, 1);
    EXPECT_TRUE(isFirst());
    EXPECT_EQ(chosen, (std::vector<int>{IDM_secondChoice, IDM_firstChoice}));
}
