// Do the keys that a test presses arrive as it means them?
#include <thread>

#include "tests/driver/UiTest.h"

namespace {

class PressedKeys : public UiTest {};

}  // namespace

TEST_F(PressedKeys, GoWithoutTheModifierKeyThatAnotherProgramHasJustBroughtBack) {
    const Huevox huevox;
    huevox.focusSlider(IDC_hsbGreen);
    const int before = huevox.sliders().green;
    KeyUp(VK_MENU);
    // Alt alone would open the menu once it is released.
    std::thread([] {
        KeyDown(VK_MENU);
        KeyDown('G');
        KeyUp('G');
    }).join();
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders().green, before + 1);
}
