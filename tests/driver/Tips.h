// How does a test see the tool tip of a control?
#pragma once

#include "tests/driver/UiTest.h"

/// Moves the mouse away and then onto a control, and expects its tool tip.
inline void ExpectTip(const Huevox& huevox, HWND control, const char* tip) {
    MoveMouse({1, 1});
    ASSERT_BECOMES(huevox.toolTip(), "");
    MoveMouse(CenterOf(control));
    EXPECT_BECOMES(huevox.toolTip(), tip);
}
