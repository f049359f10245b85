// While a form is kept on top, do the others stay above it?
#include "toolkit/forms/TopOrder.h"

#include <gtest/gtest.h>

#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"

namespace {

class TopOrderTest : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
        main.load();
        first.load();
        main.show(SW_SHOWNOACTIVATE);
        first.show(SW_SHOWNOACTIVATE);
    }
    void TearDown() override { Form::unloadAll(); }

    static bool isOnTop(const Form& form) {
        return (::GetWindowLongW(form.handle(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    }
    bool isAboveMain(const Form& form) const {
        HWND below = form.handle();
        while (below && below != main.handle()) below = ::GetWindow(below, GW_HWNDNEXT);
        return below != nullptr;
    }
    /// As Windows does when the user clicks into it.
    void raiseMain() const {
        ::SetWindowPos(main.handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }

    TestForm main;
    TwipsForm first;
    TwipsForm second;
};

}  // namespace

TEST_F(TopOrderTest, AFormThatIsRaisedCoversTheOthersOtherwise) {
    raiseMain();
    EXPECT_FALSE(isAboveMain(first));
    EXPECT_FALSE(isOnTop(main));
}

TEST_F(TopOrderTest, TheOthersStayAboveTheOneThatIsKept) {
    raiseMain();
    main.setOnTop(true);
    EXPECT_TRUE(isOnTop(main));
    EXPECT_TRUE(isAboveMain(first));
    second.load();
    raiseMain();
    EXPECT_TRUE(isAboveMain(first));
    EXPECT_TRUE(isAboveMain(second));
}

TEST_F(TopOrderTest, NobodyIsKeptAfterwards) {
    main.setOnTop(true);
    main.setOnTop(false);
    EXPECT_FALSE(isOnTop(main));
    EXPECT_FALSE(isOnTop(first));
    raiseMain();
    EXPECT_FALSE(isAboveMain(first));
}

TEST_F(TopOrderTest, NobodyIsKeptWhenAllAreLetGo) {
    Form::keepNoneOnTop();
    main.setOnTop(true);
    Form::keepNoneOnTop();
    EXPECT_FALSE(isOnTop(main));
    EXPECT_FALSE(isOnTop(first));
    second.load();
    EXPECT_FALSE(isOnTop(second));
}

TEST_F(TopOrderTest, AFormThatWasKeptAndHasGoneKeepsNobody) {
    main.setOnTop(true);
    main.unload();
    second.load();
    EXPECT_FALSE(isOnTop(second));
}
