// How does a test hold a form of its own?
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/toolkit/TestForm.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"

class FormTest : public testing::Test {
protected:
    void SetUp() override {
        ForgetQuit();
        RegisterControlClasses();
    }

    void show() {
        form.load();
        form.show(SW_SHOWNORMAL);
        PumpUntil([&] { return ::GetForegroundWindow() == form.handle(); });
        PumpAll();
    }

    std::vector<std::string> events;
    TestForm form;
};
