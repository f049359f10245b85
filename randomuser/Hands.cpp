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

void BringWindow(HWND window) {
    constexpr DWORD usual = 200;
    const auto isInFront = [window] { return ::GetForegroundWindow() == window; };
    if (!window || isInFront()) return;
    Soon([&] {
        if (Soon(isInFront, usual)) return true;
        ::SetForegroundWindow(window);
        return Soon(isInFront, usual);
    });
}

}  // namespace

void Hands::play(const Action& action, const Model& before) {
    waitForFront(before.look());
    playSliders(action);
    playBoxes(action);
    playPicks(action, before);
    playKeys(action, before);
    playCommand(action);
    playDialogs(action);
    playWindows(action, before);
    playOutside(action, before);
}

/// The window manager may hand the focus over late, and then once more.
void Hands::waitForFront(const Look& before) const {
    if (before.box.isOpen()) return BringWindow(eyes.box());
    bring(before.front);
}

void Hands::bring(Front front) const { BringWindow(eyes.windowOf(front)); }

void Hands::leaveMenu() const {
    if (eyes.isInMenu()) Press(VK_ESCAPE);
    if (!Soon([&] { return !eyes.isInMenu(); }, 200)) Press(VK_ESCAPE);
}

/// Never twice at one place: a double click does not bring the focus to a box that has lost it meanwhile.
void Hands::clickOn(int id) {
    isClickedLeft = !isClickedLeft;
    constexpr LONG aside = 3;
    const POINT middle = CenterOf(eyes.control(id));
    const POINT place = {middle.x + (isClickedLeft ? -aside : aside), middle.y};
    uncover(Front::main, place);
    Click(place);
}

/// Clicks until the focus has come. Keys go to the program that is in front when they are pressed.
void Hands::focusOn(int id) {
    constexpr DWORD longEnough = 1000;
    Soon([&] {
        clickOn(id);
        return Soon([&] { return eyes.focus() == eyes.control(id); }, longEnough);
    });
    bring(Front::main);
}

void Hands::retype(int id, const std::string& text) {
    focusOn(id);
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

void Hands::playSliders(const Action& action) {
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
            const LRESULT from = eyes.ask(eyes.control(IDC_hsbRed + action.which), SBM_GETPOS);
            dragSlider(action.which, static_cast<int>(from), action.value);
            break;
        }
        case Kind::barClick: Click(eyes.barStep(action.value)); break;
        default: break;
    }
}

/// Over the end, and to and fro until the thumb has come there: late reports of the pointer take it back.
void Hands::dragSlider(int slider, int from, int to) const {
    const HWND bar = eyes.control(IDC_hsbRed + slider);
    const POINT start = huevox.thumb(IDC_hsbRed + slider, from);
    const LONG beyond = to > 0 ? 20 : -20;
    const LONG end = huevox.thumb(IDC_hsbRed + slider, to).x + beyond;
    PressButton(start);
    Soon([&] { return eyes.capture() == bar; });
    LONG aside = 0;
    Soon([&] {
        aside = 1 - aside;
        MoveMouse({end + aside, start.y});
        constexpr DWORD usual = 20;
        return Soon([&] { return eyes.ask(bar, SBM_GETPOS) == to; }, usual);
    });
    ReleaseButton({end + aside, start.y});
    Soon([&] { return eyes.capture() == nullptr; });
}

void Hands::playBoxes(const Action& action) {
    switch (action.kind) {
        case Kind::typeValue: retype(IDC_txtSetRed + action.which, action.text); break;
        case Kind::typeName: retype(IDC_txtName + action.which, action.text); break;
        case Kind::enterValue:
            focusOn(IDC_txtSetRed + action.which);
            Press(VK_RETURN);
            break;
        case Kind::eraseName:
            focusOn(IDC_txtName + action.which);
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
            focusOn(IDC_optColor + selected);
            PressSteps(VK_RIGHT, VK_LEFT, action.value);
            break;
        case Kind::pickDrag: pick(action, before); break;
        case Kind::pickRight: RightClick(CenterOf(eyes.control(IDC_picSample + selected))); break;
        default: break;
    }
}

void Hands::playKeys(const Action& action, const Model& before) {
    switch (action.kind) {
        case Kind::barKeys:
            focusOn(IDC_optColor + before.look().selected);
            Press(VK_TAB);
            Press(action.which == 0 ? VK_HOME : VK_END);
            PressOften(action.which == 0 ? VK_RIGHT : VK_LEFT, action.value);
            Press(VK_SPACE);
            // The frame of the focus would lie over the colours.
            Press('R', {VK_MENU});
            break;
        case Kind::swatchKeys:
            clickSwatch(action);
            Press(VK_RIGHT);
            Press(VK_SPACE);
            break;
        case Kind::tabs:
            Press('R', {VK_MENU});
            PressOften(VK_TAB, action.value);
            break;
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
