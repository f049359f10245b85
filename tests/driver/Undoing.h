// How does a test take back what it has done?
#pragma once

#include "tests/driver/UiTest.h"

inline constexpr const char* noName = "Type a colour name";

inline void PressUndo() { Press('Z', {VK_CONTROL}); }
inline void PressRedo() { Press('Y', {VK_CONTROL}); }

/// One step of the green slider to the right, which is copied: then the hand has rested.
inline void ChangeAndRest(const Huevox& huevox, const Color& expected) {
    huevox.focusSlider(IDC_hsbGreen);
    Press(VK_RIGHT);
    ASSERT_BECOMES(huevox.sliders(), expected);
    ASSERT_BECOMES(ClipboardText() == huevox.text(IDC_lblClipboard), true);
}
