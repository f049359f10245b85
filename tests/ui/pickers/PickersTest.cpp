// What does each swatch of the websafe and failsafe palettes show and set?
#include <array>
#include <string>

#include "tests/driver/PickerWindow.h"
#include "tests/driver/UiTest.h"

namespace {

class PickersWebsafe : public UiTest {};
class PickersFailsafe : public UiTest {};

const Color red = ColorOf(255, 0, 0);

Swatch WebsafeSwatch(int redLevel, int greenLevel, int blueLevel) {
    return {greenLevel * 6 + redLevel, 5 - blueLevel};
}

}  // namespace

TEST_F(PickersWebsafe, EverySwatchSetsItsLevelsTimes51) {
    const Huevox huevox;
    const PickerWindow websafe(huevox, websafeGrid);
    for (int level = 0; level < 216; ++level) {
        const int redLevel = level % 6;
        const int greenLevel = level / 36;
        const int blueLevel = level / 6 % 6;
        const Color color = ColorOf(redLevel * 51, greenLevel * 51, blueLevel * 51);
        ExpectClick(huevox, websafe, WebsafeSwatch(redLevel, greenLevel, blueLevel), color);
        if (redLevel == blueLevel) {
            EXPECT_BECOMES(huevox.sample(0), color);
        }
    }
    EXPECT_BECOMES(ClipboardText(), "#FFFFFF");
}

TEST_F(PickersWebsafe, BlackIsAtTheBottomLeftAndWhiteAtTheTopRight) {
    const Huevox huevox;
    const PickerWindow websafe(huevox, websafeGrid);
    ExpectClick(huevox, websafe, {0, 5}, ColorOf(0, 0, 0));
    ExpectClick(huevox, websafe, {35, 0}, ColorOf(255, 255, 255));
    ExpectClick(huevox, websafe, {0, 4}, ColorOf(0, 0, 51));
    ExpectClick(huevox, websafe, {6, 5}, ColorOf(0, 51, 0));
    EXPECT_BECOMES(huevox.text(IDC_txtSetGreen), "51");
    EXPECT_BECOMES(ClipboardText(), "#003300");
}

TEST_F(PickersWebsafe, ToolTipsAreTheSixDigits) {
    const Huevox huevox;
    const PickerWindow websafe(huevox, websafeGrid);
    ExpectTip(huevox, websafe, {0, 5}, "#000000");
    ExpectTip(huevox, websafe, {0, 4}, "#000033");
    ExpectTip(huevox, websafe, {6, 5}, "#003300");
    ExpectTip(huevox, websafe, {1, 5}, "#330000");
    ExpectTip(huevox, websafe, {34, 1}, "#CCFFCC");
    ExpectTip(huevox, websafe, {35, 0}, "#FFFFFF");
}

TEST_F(PickersWebsafe, ARightClickChangesNothing) {
    const Huevox huevox;
    const PickerWindow websafe(huevox, websafeGrid);
    ExpectNothingByTheRightButton(huevox, websafe, {0, 5});
    ExpectNothingByTheRightButton(huevox, websafe, {20, 3});
}

TEST_F(PickersWebsafe, TheSwatchOfTheCurrentColorChangesNothing) {
    const Huevox huevox;
    const PickerWindow websafe(huevox, websafeGrid);
    huevox.retype(IDC_txtSetBlue, "77");
    ASSERT_BECOMES(huevox.isEnabled(IDC_cmdSetColor), true);
    websafe.click({5, 5});
    huevox.focusByClick(Name(0));  // the input behind the click has arrived
    EXPECT_EQ(huevox.sliders(), red);
    EXPECT_EQ(huevox.text(IDC_txtSetBlue), "77");
    EXPECT_TRUE(huevox.isEnabled(IDC_cmdSetColor));
}

TEST_F(PickersWebsafe, TheSelectedMarkTakesTheColor) {
    const Huevox huevox;
    huevox.selectMark(3);
    const PickerWindow websafe(huevox, websafeGrid);
    ExpectClick(huevox, websafe, {7, 4}, ColorOf(51, 51, 51));
    EXPECT_BECOMES(huevox.sample(3), ColorOf(51, 51, 51));
    EXPECT_BECOMES(huevox.sample(0), red);
}

TEST_F(PickersFailsafe, EverySwatchSetsAndTellsItsColor) {
    const std::array<const char*, 16> tips = {
        "#000000", "#800080", "#000080", "#008080", "#008000", "#808000", "#800000", "#808080",
        "#FF00FF", "#0000FF", "#00FFFF", "#00FF00", "#FFFF00", "#FF0000", "#C0C0C0", "#FFFFFF"};
    const Huevox huevox;
    const PickerWindow failsafe(huevox, failsafeGrid);
    for (int i = 0; i < 16; ++i) {
        const int value = std::stoi(tips[i] + 1, nullptr, 16);
        ExpectTip(huevox, failsafe, {i, 0}, tips[i]);
        ExpectClick(huevox, failsafe, {i, 0}, ColorOf(value >> 16, value >> 8 & 255, value & 255));
        EXPECT_BECOMES(huevox.text(IDC_lblClipboard), tips[i]);
    }
}

TEST_F(PickersFailsafe, Swatch10IsAquaAndSwatch8IsFuchsia) {
    const Huevox huevox;
    const PickerWindow failsafe(huevox, failsafeGrid);
    ExpectClick(huevox, failsafe, {10, 0}, ColorOf(0, 255, 255));
    ExpectClick(huevox, failsafe, {8, 0}, ColorOf(255, 0, 255));
    EXPECT_BECOMES(ClipboardText(), "#FF00FF");
}

TEST_F(PickersFailsafe, ARightClickChangesNothing) {
    const Huevox huevox;
    const PickerWindow failsafe(huevox, failsafeGrid);
    ExpectNothingByTheRightButton(huevox, failsafe, {9, 0});
}
