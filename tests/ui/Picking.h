// How does a test pick a colour from the screen?
#pragma once

#include "tests/ui/UiTest.h"

inline void TurnPickModeOn(const Huevox& huevox) {
    Click(huevox.control(IDC_chkColorPick));
    ASSERT_BECOMES(huevox.isEnabled(IDC_picSampleContainer), true);
}

inline POINT Sample(const Huevox& huevox, int mark) { return CenterOf(huevox.control(IDC_picSample + mark)); }

inline bool IsShown(const Huevox& huevox, int id) { return ::IsWindowVisible(huevox.control(id)) != FALSE; }

inline void Hold(const Huevox& huevox, POINT place) {
    PressButton(place);
    ASSERT_BECOMES(IsShown(huevox, IDC_picPick), true);
}

inline Color Preview(const Huevox& huevox) { return Pixel(CenterOf(huevox.control(IDC_picPick))); }

/// Moves, as a hand does, more than once, until the pointer stays there: a display that reports an earlier
/// move late takes it back.
inline void DragTo(const Huevox& huevox, POINT place, const Color& expected) {
    constexpr int enough = 5;
    int steady = 0;
    EXPECT_TRUE(Eventually([&] {
        POINT pointer{};
        ::GetCursorPos(&pointer);
        const bool isThere = pointer.x == place.x && pointer.y == place.y && Preview(huevox) == expected;
        steady = isThere ? steady + 1 : 0;
        if (!isThere) MoveMouse(place);
        return steady == enough;
    })) << testing::PrintToString(Preview(huevox));
}
