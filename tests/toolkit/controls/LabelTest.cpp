// What does a label show after its form was loaded again?
#include <gtest/gtest.h>

#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/platform/WindowText.h"

TEST(LoadedAgain, ALabelBeginsWithTheTextOfItsTemplate) {
    ForgetQuit();
    RegisterControlClasses();
    TestForm form;
    form.load();
    form.lblTest.setText("shown");
    EXPECT_EQ(WindowText(form.lblTest.handle()), "shown");
    form.unload();
    form.load();
    EXPECT_EQ(form.lblTest.text(), "");
    form.lblTest.setText("shown");
    EXPECT_EQ(WindowText(form.lblTest.handle()), "shown");
    form.unload();
}
