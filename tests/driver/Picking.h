// How does a test pick a colour from the screen?
#pragma once

#include "tests/driver/UiTest.h"

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

/// The window that shows the pixels around the pointer, or nullptr.
inline HWND LoupeOf(const Huevox& huevox) { return huevox.form("frmLoupe"); }

inline Color Preview(const Huevox& huevox) { return Pixel(CenterOf(huevox.control(IDC_picPick))); }

/// The preview shows what is there.
inline void DragTo(const Huevox& huevox, POINT place, const Color& expected) {
    MoveMouse(place);
    EXPECT_BECOMES(Preview(huevox), expected);
}

/// Presses a mark's sample, drags to a place of that colour and lets go there.
inline void Pick(const Huevox& huevox, int mark, POINT place, const Color& color) {
    Hold(huevox, Sample(huevox, mark));
    DragTo(huevox, place, color);
    ReleaseButton(place);
}

/// Waits until the pick is over and everything is back in its place.
inline void ExpectPickEnd(const Huevox& huevox) {
    EXPECT_BECOMES(IsShown(huevox, IDC_picPick), false);
    EXPECT_BECOMES(IsShown(huevox, IDC_hsbRed), true);
    EXPECT_BECOMES(LoupeOf(huevox) == nullptr, true);
}
