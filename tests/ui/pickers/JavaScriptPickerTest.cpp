// What does each swatch of the JavaScript palette show and set, in either order?
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/core/NamedColors.h"
#include "tests/driver/PickerWindow.h"
#include "tests/driver/UiTest.h"

namespace {

class PickersJavaScript : public UiTest {};

const Color almond = ColorOf(0xFF, 0xEB, 0xCD);

Swatch JavaScriptSwatch(int index) { return {index % 7, index / 7}; }

HWND SortTools(const PickerWindow& picker) { return ::GetDlgItem(picker.window(), IDC_tbrSortTools); }

/// Clicks a button of the tool bar and waits until it is pressed.
void ChooseOrder(const Huevox& huevox, const PickerWindow& picker, int command) {
    Click(huevox.toolButton(SortTools(picker), command));
    ASSERT_BECOMES(IsPressed(picker.window(), command), true);
}

std::vector<Color> AlphabeticalColors() {
    std::vector<Color> colors;
    for (const auto& [name, packed] : ReadJavaScriptColors()) colors.push_back(Unpack(packed));
    return colors;
}

/// Some places of the order by hue, and their colours.
const std::vector<std::pair<int, Color>> byHue = {
    {0, ColorOf(0, 0, 0)},       {8, ColorOf(255, 255, 255)},
    {16, ColorOf(255, 0, 0)},    {39, almond},
    {56, ColorOf(128, 128, 0)},  {72, ColorOf(0, 128, 0)},
    {89, ColorOf(0, 255, 255)},  {90, ColorOf(0, 255, 255)},
    {113, ColorOf(0, 0, 255)},   {129, ColorOf(255, 0, 255)},
    {130, ColorOf(255, 0, 255)}, {139, ColorOf(0xFF, 0xB6, 0xC1)},
};

}  // namespace

TEST_F(PickersJavaScript, EverySwatchSetsItsColorInAlphabeticalOrder) {
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    const std::vector<Color> colors = AlphabeticalColors();
    ASSERT_EQ(colors.size(), 140U);
    for (int i = 0; i < 140; ++i) ExpectClick(huevox, javaScript, JavaScriptSwatch(i), colors[i]);
    EXPECT_BECOMES(ClipboardText(), "#9ACD32");
}

TEST_F(PickersJavaScript, EverySwatchSetsItsColorInTheSecondOrder) {
    StoreText("SortIndex", "1");
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    // What has been painted is on the screen a moment later: all at once, from the first swatch to the last.
    for (const auto& known : byHue)
        ASSERT_BECOMES(javaScript.colorAt(JavaScriptSwatch(known.first)), known.second);
    std::multiset<PackedColor> set;
    for (int i = 0; i < 140; ++i) {
        const Swatch swatch = JavaScriptSwatch(i);
        const Color shown = javaScript.colorAt(swatch);
        ExpectClick(huevox, javaScript, swatch, shown);
        set.insert(Pack(shown));
    }
    std::multiset<PackedColor> expected;
    for (const Color& color : AlphabeticalColors()) expected.insert(Pack(color));
    EXPECT_EQ(set, expected);
    for (const auto& [index, color] : byHue) ExpectClick(huevox, javaScript, JavaScriptSwatch(index), color);
}

TEST_F(PickersJavaScript, ToolTipsAreNameAndDigitsFromAliceblueToYellowgreen) {
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    ExpectTip(huevox, javaScript, {0, 0}, "aliceblue #F0F8FF");
    ExpectTip(huevox, javaScript, {5, 9}, "lightgrey #D3D3D3");
    ExpectTip(huevox, javaScript, {6, 19}, "yellowgreen #9ACD32");
}

TEST_F(PickersJavaScript, ToolTipsAreThereAgainWhenItIsOpenedAgain) {
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    ExpectTip(huevox, javaScript, JavaScriptSwatch(0), "aliceblue #F0F8FF");
    javaScript.close();
    javaScript.open();
    ExpectTip(huevox, javaScript, JavaScriptSwatch(0), "aliceblue #F0F8FF");
}

TEST_F(PickersJavaScript, OneNameIsSpeltDifferentlyInTheSecondOrder) {
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    ExpectTip(huevox, javaScript, JavaScriptSwatch(8), "blanchedalmond #FFEBCD");
    ChooseOrder(huevox, javaScript, IDM_DotNet);
    ExpectTip(huevox, javaScript, JavaScriptSwatch(39), "blancedalmond #FFEBCD");
    ExpectClick(huevox, javaScript, JavaScriptSwatch(39), almond);
}

TEST_F(PickersJavaScript, SwitchingTheOrderRecolorsAllSwatches) {
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    const std::vector<Color> colors = AlphabeticalColors();
    const auto shown = [&](int i) { return javaScript.colorAt(JavaScriptSwatch(i)); };
    ExpectClick(huevox, javaScript, {0, 0}, ColorOf(0xF0, 0xF8, 0xFF));
    ChooseOrder(huevox, javaScript, IDM_DotNet);
    EXPECT_FALSE(IsPressed(javaScript.window(), IDM_Alphabetically));
    for (const auto& known : byHue) EXPECT_BECOMES(shown(known.first), known.second);
    ExpectClick(huevox, javaScript, {0, 0}, ColorOf(0, 0, 0));
    ChooseOrder(huevox, javaScript, IDM_Alphabetically);
    EXPECT_FALSE(IsPressed(javaScript.window(), IDM_DotNet));
    for (int i = 0; i < 140; ++i) EXPECT_BECOMES(shown(i), colors[i]);
}

TEST_F(PickersJavaScript, ASwitchOfTheOrderLastsUntilTheWindowIsClosed) {
    StoreText("SortIndex", "1");
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    EXPECT_TRUE(IsPressed(javaScript.window(), IDM_DotNet));
    ChooseOrder(huevox, javaScript, IDM_Alphabetically);
    EXPECT_BECOMES(javaScript.colorAt({0, 0}), ColorOf(0xF0, 0xF8, 0xFF));
    javaScript.close();
    EXPECT_EQ(StoredText("SortIndex"), "1");
    javaScript.open();
    EXPECT_TRUE(IsPressed(javaScript.window(), IDM_DotNet));
    EXPECT_FALSE(IsPressed(javaScript.window(), IDM_Alphabetically));
    EXPECT_BECOMES(javaScript.colorAt({0, 0}), ColorOf(0, 0, 0));
}

TEST_F(PickersJavaScript, TheButtonOfTheStoredOrderIsPressed) {
    for (const auto& [stored, pressed] : {std::pair{"0", IDM_Alphabetically}, std::pair{"1", IDM_DotNet}}) {
        const int command = pressed;  // not every compiler lets a lambda take the other in
        StoreText("SortIndex", stored);
        const Huevox huevox;
        const PickerWindow javaScript(huevox, javaScriptGrid);
        EXPECT_BECOMES(IsPressed(javaScript.window(), command), true) << stored;
        EXPECT_EQ(IsPressed(javaScript.window(), IDM_Alphabetically), command == IDM_Alphabetically)
            << stored;
    }
}

TEST_F(PickersJavaScript, SwatchesAreOfTheOrderThatIsSwitchedTo) {
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    ChooseOrder(huevox, javaScript, IDM_DotNet);
    ExpectClick(huevox, javaScript, JavaScriptSwatch(16), ColorOf(255, 0, 0));
    ChooseOrder(huevox, javaScript, IDM_Alphabetically);
    ExpectClick(huevox, javaScript, JavaScriptSwatch(0), ColorOf(0xF0, 0xF8, 0xFF));
}

TEST_F(PickersJavaScript, TheSortButtonsHaveToolTips) {
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    EXPECT_EQ(::SendMessageA(SortTools(javaScript), TB_BUTTONCOUNT, 0, 0), 2);
    MoveMouse(huevox.toolButton(SortTools(javaScript), IDM_Alphabetically));
    EXPECT_BECOMES(huevox.toolTip(), "Sort alphabetically");
    MoveMouse(huevox.toolButton(SortTools(javaScript), IDM_DotNet));
    EXPECT_BECOMES(huevox.toolTip(), "Sort like Visual Studio .NET");
}

TEST_F(PickersJavaScript, ARightClickChangesNothing) {
    const Huevox huevox;
    const PickerWindow javaScript(huevox, javaScriptGrid);
    ExpectNothingByTheRightButton(huevox, javaScript, {3, 10});
}
