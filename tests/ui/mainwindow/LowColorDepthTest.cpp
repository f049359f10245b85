// What does the program say on a display of 16 bits a pixel? Run on one.
#include "tests/driver/UiTest.h"

namespace {

class LowColorDepth : public UiTest {};

}  // namespace

TEST_F(LowColorDepth, IsToldBeforeTheWindowIsShown) {
    Huevox huevox(Huevox::DoNotWait{});
    const HWND message = WaitForMessage(
        huevox,
        "The color depth of your monitor has a low value.\r\n\r\n"
        "Huevox will look better if you select a higher value in the Control Panel in Windows.");
    EXPECT_FALSE(::FindWindowA("frmMain", nullptr) && ::IsWindowVisible(::FindWindowA("frmMain", nullptr)));
    Answer(message, IDOK);
    ASSERT_TRUE(huevox.waitForWindow());
    EXPECT_EQ(huevox.title(), "Huevox - New palette");
    EXPECT_EQ(huevox.dialogCount(), 0);
}
