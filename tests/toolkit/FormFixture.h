// How does a test use a form of its own?
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"

/// Waits until a form that is shown is in front and painted.
inline void WaitForFront(const Form& form) {
    ASSERT_TRUE(PumpUntil([&] { return ::GetForegroundWindow() == form.handle(); })) << "not in front";
    PumpAll();
}

/// Every test begins where forms can be loaded.
class FormsTest : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
    }
};

/// The form with a control of each kind.
class FormTest : public FormsTest {
protected:
    void show() {
        form.load();
        form.show(SW_SHOWNORMAL);
        WaitForFront(form);
    }

    std::vector<std::string> events;
    TestForm form;
};

/// A form that loads itself, made anew for every test.
template <class OwnForm>
class OwnFormTest : public FormsTest {
protected:
    void SetUp() override {
        FormsTest::SetUp();
        form = std::make_unique<OwnForm>();
    }

    std::unique_ptr<OwnForm> form;
};
