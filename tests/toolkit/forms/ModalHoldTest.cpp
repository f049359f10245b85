// While a modal window has disabled its owner, which other forms take input?
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/ModalHold.h"

#include <gtest/gtest.h>

#include "tests/toolkit/TestForm.h"
#include "toolkit/forms/MessageLoop.h"

namespace {

class ModalHoldTest : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
        main.load();
        first.load();
    }
    void TearDown() override { Form::unloadAll(); }

    static void enable(const Form& form, bool isEnabled) { ::EnableWindow(form.handle(), isEnabled); }
    static bool isEnabled(const Form& form) { return ::IsWindowEnabled(form.handle()) != FALSE; }
    /// Makes the dialog what a modal form is.
    void own(const Form& dialog) const {
        ::SetWindowLongPtrW(dialog.handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(main.handle()));
    }

    TestForm main;
    TwipsForm first;
    TwipsForm second;
    TwipsForm dialog;
};

}  // namespace

TEST_F(ModalHoldTest, AFormThatIsDisabledHoldsTheOthers) {
    second.load();
    enable(main, false);
    EXPECT_FALSE(isEnabled(first));
    EXPECT_FALSE(isEnabled(second));
    enable(main, true);
    EXPECT_TRUE(isEnabled(first));
    EXPECT_TRUE(isEnabled(second));
}

TEST_F(ModalHoldTest, AgainAndAgain) {
    for (int time = 0; time < 3; ++time) {
        enable(main, false);
        enable(main, false);
        EXPECT_FALSE(isEnabled(first));
        enable(main, true);
        EXPECT_TRUE(isEnabled(first));
    }
    enable(first, false);
    EXPECT_FALSE(isEnabled(main));
    enable(first, true);
    EXPECT_TRUE(isEnabled(main));
}

TEST_F(ModalHoldTest, AFormThatTheDisabledOneOwnsIsTheModalOneAndNotHeld) {
    dialog.load();
    own(dialog);
    enable(main, false);
    EXPECT_TRUE(isEnabled(dialog));
    EXPECT_FALSE(isEnabled(first));
    enable(main, true);
    EXPECT_TRUE(isEnabled(first));
}

TEST_F(ModalHoldTest, AMessageOverADialogLetsNothingGoWhenItCloses) {
    dialog.load();
    own(dialog);
    enable(main, false);
    enable(dialog, false);
    enable(dialog, true);
    EXPECT_FALSE(isEnabled(main));
    EXPECT_FALSE(isEnabled(first));
    EXPECT_TRUE(isEnabled(dialog));
    enable(main, true);
    EXPECT_TRUE(isEnabled(main));
    EXPECT_TRUE(isEnabled(first));
}

TEST_F(ModalHoldTest, AFormThatIsLoadedMeanwhileIsHeldUntilTheOthersAreLetGo) {
    dialog.load();
    own(dialog);
    enable(main, false);
    enable(dialog, false);
    second.load();
    EXPECT_FALSE(isEnabled(second));
    enable(dialog, true);
    EXPECT_FALSE(isEnabled(second));
    enable(main, true);
    EXPECT_TRUE(isEnabled(second));
}

TEST_F(ModalHoldTest, AFormThatIsUnloadedMeanwhileAndLoadedAgainTakesInput) {
    enable(main, false);
    first.unload();
    enable(main, true);
    first.load();
    EXPECT_TRUE(isEnabled(first));
}

TEST_F(ModalHoldTest, AFormThatGoesWhileItHoldsLetsGo) {
    enable(first, false);
    EXPECT_FALSE(isEnabled(main));
    first.unload();
    EXPECT_TRUE(isEnabled(main));
}
