// How does a test see the tool tip of a place?
#pragma once

#include "tests/driver/Huevox.h"
#include "tests/driver/Input.h"
#include "tests/driver/Wait.h"

/// Moves the mouse away until no tool tip is left, and then there.
inline void Hover(const Huevox& huevox, POINT place) {
    MoveMouse({1, 1});
    ASSERT_BECOMES(huevox.toolTip(), "");
    MoveMouse(place);
}

/// The same, and expects the tool tip of the place.
inline void ExpectTip(const Huevox& huevox, POINT place, const char* tip) {
    Hover(huevox, place);
    EXPECT_BECOMES(huevox.toolTip(), tip);
}

inline void ExpectTip(const Huevox& huevox, HWND control, const char* tip) {
    ExpectTip(huevox, CenterOf(control), tip);
}
