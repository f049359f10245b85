#include "randomuser/Hands.h"

#include <cstdlib>

#include "randomuser/Soon.h"
#include "resources/resource.h"
#include "tests/ui/Input.h"

namespace {

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

void Hands::play(const Action& action, const Model& before) {
    playSliders(action, before);
    playBoxes(action);
    playPicks(action, before);
    playCommand(action);
    playWindows(action, before);
    playOutside(action, before);
}

/// Never twice at one place: a double click does not bring the focus to a box that has lost it meanwhile.
void Hands::clickOn(int id) {
    isClickedLeft = !isClickedLeft;
    constexpr LONG aside = 3;
    const POINT middle = CenterOf(eyes.control(id));
    const Front front = eyes.frontWindow();
    Click({middle.x + (isClickedLeft ? -aside : aside), middle.y});
    // Keys go to the program that is in front when they are pressed.
    constexpr DWORD longEnough = 1000;
    if (front != Front::main) Soon([&] { return eyes.frontWindow() != front; }, longEnough);
}

void Hands::retype(int id, const std::string& text) {
    clickOn(id);
    Press(VK_END);
    Press(VK_HOME, {VK_SHIFT});
    if (text.empty()) Press(VK_DELETE);
    Type(text);
}

void Hands::waitForInput() const {
    const bool isOnRed = eyes.focus() == eyes.control(IDC_hsbRed);
    Press(isOnRed ? 'G' : 'R', {VK_MENU});
    Soon([&] { return eyes.focus() == eyes.control(isOnRed ? IDC_hsbGreen : IDC_hsbRed); });
}

void Hands::playSliders(const Action& action, const Model& before) {
    switch (action.kind) {
        case Kind::sliderKeys:
            Press(sliderLetters.at(action.which), {VK_MENU});
            PressOften(sliderKeys.at(action.value % 8), action.value / 8);
            break;
        case Kind::sliderArrow: {
            const HWND bar = eyes.control(IDC_hsbRed + action.which);
            RECT area{};
            ::GetClientRect(bar, &area);
            constexpr int inArrow = 6;
            const int left = action.value > 0 ? static_cast<int>(area.right) - inArrow : inArrow;
            Click(OnScreen(bar, {left, area.bottom / 2}));
            break;
        }
        case Kind::sliderDrag: {
            const Color color = before.current();
            const std::array channels = {color.red, color.green, color.blue};
            dragSlider(action.which, channels.at(action.which), action.value);
            break;
        }
        case Kind::barClick: Click(eyes.barStep(action.value)); break;
        default: break;
    }
}

/// By way of the middle, and over the end: the thumb stops there.
void Hands::dragSlider(int slider, int from, int to) const {
    const int id = IDC_hsbRed + slider;
    const POINT start = huevox.thumb(id, from);
    const POINT end = huevox.thumb(id, to);
    PressButton(start);
    Soon([&] { return eyes.capture() == eyes.control(id); });
    const LONG beyond = to > 0 ? 20 : -20;
    for (const LONG left : {(start.x + end.x) / 2, end.x, end.x + beyond}) MoveMouse({left, start.y});
    ReleaseButton({end.x + beyond, start.y});
    Soon([&] { return eyes.capture() == nullptr; });
}

void Hands::playBoxes(const Action& action) {
    switch (action.kind) {
        case Kind::typeValue: retype(IDC_txtSetRed + action.which, action.text); break;
        case Kind::typeName: retype(IDC_txtName + action.which, action.text); break;
        case Kind::enterValue:
            clickOn(IDC_txtSetRed + action.which);
            Press(VK_RETURN);
            break;
        case Kind::eraseName:
            clickOn(IDC_txtName + action.which);
            Press(VK_END);
            Press(VK_BACK);
            break;
        case Kind::pressSet: clickOn(IDC_cmdSetColor); break;
        case Kind::setMode: clickOn(action.value == 0 ? IDC_optSetDec : IDC_optSetHex); break;
        case Kind::jsNames: clickOn(IDC_chkJSNamesOnly); break;
        case Kind::pickMode: clickOn(IDC_chkColorPick); break;
        case Kind::notation: {
            const HWND list = eyes.control(IDC_lstAutocopy);
            const auto height = static_cast<LONG>(eyes.ask(list, LB_GETITEMHEIGHT));
            Click(OnScreen(list, {20, action.value * height + height / 2}));
            break;
        }
        case Kind::notationKeys:
            Press('N', {VK_MENU});
            PressSteps(VK_DOWN, VK_UP, action.value);
            break;
        default: break;
    }
}

void Hands::playPicks(const Action& action, const Model& before) {
    const int selected = before.look().selected;
    switch (action.kind) {
        case Kind::selectMark: clickOn(IDC_optColor + action.which); break;
        case Kind::markKeys:
            clickOn(IDC_optColor + selected);
            PressSteps(VK_RIGHT, VK_LEFT, action.value);
            break;
        case Kind::pickDrag: pick(action, before); break;
        case Kind::pickRight: RightClick(CenterOf(eyes.control(IDC_picSample + selected))); break;
        default: break;
    }
}

/// Moves, as a hand does, until the preview has followed.
void Hands::pick(const Action& action, const Model& before) {
    const HWND preview = eyes.control(IDC_picPick);
    const POINT place =
        action.which < 6 ? CenterOf(eyes.control(IDC_picSample + action.which)) : eyes.barStep(action.value);
    PressButton(CenterOf(eyes.control(IDC_picSample + before.look().selected)));
    Soon([&] { return ::IsWindowVisible(preview) != FALSE; });
    // To and fro: where the button was pressed there is no movement.
    Soon([&] {
        ++movements;
        MoveMouse({place.x, place.y + movements % 2});
        return Pixel(CenterOf(preview)) == before.pickTarget(action);
    });
    ReleaseButton(place);
    Soon([&] { return ::IsWindowVisible(preview) == FALSE; });
}
