#include "randomuser/PanelHands.h"

#include <array>
#include <cstdlib>

#include "resources/resource.h"
#include "tests/driver/Input.h"

namespace {

/// In the order of SliderKey.
constexpr std::array<WORD, 8> sliderKeys = {VK_LEFT,  VK_RIGHT, VK_UP,   VK_DOWN,
                                            VK_PRIOR, VK_NEXT,  VK_HOME, VK_END};
constexpr std::array<WORD, 3> sliderLetters = {'R', 'G', 'B'};

void PressOften(WORD key, int times) {
    for (int time = 0; time < times; ++time) Press(key);
}

/// One key for steps forward, one for steps back.
void PressSteps(WORD forward, WORD back, int steps) {
    PressOften(steps > 0 ? forward : back, std::abs(steps));
}

}  // namespace

void PanelHands::pressSliderKeys(int slider, int keys) {
    reach.focusByKey(sliderLetters.at(slider), IDC_hsbRed + slider);
    PressOften(sliderKeys.at(keys % 8), keys / 8);
}

void PanelHands::clickArrow(int slider, bool isRight) {
    constexpr int inArrow = 6;
    const HWND bar = eyes.control(IDC_hsbRed + slider);
    RECT area{};
    ::GetClientRect(bar, &area);
    const int left = isRight ? static_cast<int>(area.right) - inArrow : inArrow;
    reach.clickAt(OnScreen(bar, {left, area.bottom / 2}));
}

/// Beyond the end, where the thumb stays at it.
void PanelHands::dragSlider(int slider, int to) {
    const int id = IDC_hsbRed + slider;
    const HWND bar = eyes.control(id);
    const POINT start = huevox.thumb(id, static_cast<int>(eyes.ask(bar, SBM_GETPOS)));
    const LONG beyond = to > 0 ? 20 : -20;
    const POINT end = {huevox.thumb(id, to).x + beyond, start.y};
    reach.uncover(eyes.main(), start);
    PressButton(start);
    reach.await("the grip on a slider", [&] { return eyes.capture() == bar; });
    awaitEnd(bar, end, to);
    reach.await("the end of a drag", [&] { return eyes.capture() == nullptr; });
}

/// To and fro until the thumb has come there, then lets go: late reports of the pointer take it back.
void PanelHands::awaitEnd(HWND bar, POINT end, int value) {
    LONG aside = 0;
    reach.await("a slider's end", [&] {
        constexpr DWORD usual = 20;
        aside = 1 - aside;
        MoveMouse({end.x + aside, end.y});
        return Soon([&] { return eyes.ask(bar, SBM_GETPOS) == value; }, usual);
    });
    ReleaseButton({end.x + aside, end.y});
}

void PanelHands::pressBarKeys(int selected, bool isFromLeft, int steps) {
    reach.focusOn(IDC_optColor + selected);
    Press(VK_TAB);
    reach.awaitFocus(eyes.control(IDC_lblColorBar));
    Press(isFromLeft ? VK_HOME : VK_END);
    PressOften(isFromLeft ? VK_RIGHT : VK_LEFT, steps);
    Press(VK_SPACE);
    // The frame of the focus would lie over the colours.
    reach.focusByKey('R', IDC_hsbRed);
}

void PanelHands::retype(int id, const std::string& text) {
    reach.focusOn(id);
    Press(VK_END);
    Press(VK_HOME, {VK_SHIFT});
    if (text.empty()) Press(VK_DELETE);
    Type(text);
    // Keys that are still to come would go to whatever comes to the front next, where a blank presses a cell.
    reach.awaitRest(eyes.main());
}

void PanelHands::pressIn(int id, WORD key) {
    reach.focusOn(id);
    Press(key);
}

void PanelHands::eraseIn(int id) {
    pressIn(id, VK_END);
    Press(VK_BACK);
}

void PanelHands::pressMarkKeys(int selected, int steps) {
    reach.focusOn(IDC_optColor + selected);
    PressSteps(VK_RIGHT, VK_LEFT, steps);
}

void PanelHands::clickNotation(int row) {
    const HWND list = eyes.control(IDC_lstAutocopy);
    const auto height = static_cast<LONG>(eyes.ask(list, LB_GETITEMHEIGHT));
    reach.clickAt(OnScreen(list, {20 + reach.nextAside(), row * height + height / 2}));
}

void PanelHands::pressNotationKeys(int steps) {
    reach.focusByKey('N', IDC_lstAutocopy);
    PressSteps(VK_DOWN, VK_UP, steps);
}

void PanelHands::tab(int times) {
    reach.focusByKey('R', IDC_hsbRed);
    PressOften(VK_TAB, times);
}
