#include "randomuser/Hands.h"

#include <cstdlib>

#include "randomuser/Soon.h"
#include "randomuser/model/Pick.h"
#include "resources/resource.h"
#include "tests/driver/Input.h"

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

std::string Hands::play(const Action& action, const Look& before) {
    missing.clear();
    // Keys and clicks that come before their window takes them go elsewhere.
    before.box.isOpen() ? bringBox() : bring(before.front);
    if (missing.empty()) {
        playSliders(action);
        playBoxes(action);
        playPicks(action, before);
        playKeys(action, before);
        playCommand(action);
        playDialogs(action);
        playWindows(action, before);
        playOutside(action, before);
    }
    return missing.empty() ? "" : missing + ": has not come (" + eyes.situation() + ')';
}

void Hands::bringWindow(const std::function<HWND()>& windowOf) {
    await("a window in front that takes keys", [&] {
        const HWND window = windowOf();
        if (Eyes::hasKeys(window)) return true;
        if (window && ::GetForegroundWindow() != window) ::SetForegroundWindow(window);
        return false;
    });
}

void Hands::clickAt(POINT place) {
    uncover(eyes.main(), place);
    Click(place);
}

/// Never twice at one place: a double click neither brings the focus to a box that has lost it meanwhile nor
/// chooses a row that keys have left.
LONG Hands::nextAside() {
    constexpr LONG aside = 3;
    isClickedLeft = !isClickedLeft;
    return isClickedLeft ? -aside : aside;
}

void Hands::clickOn(int id) {
    const POINT middle = CenterOf(eyes.control(id));
    clickAt({middle.x + nextAside(), middle.y});
}

/// Keys go to the program that is in front when they are pressed.
void Hands::focusOn(int id) {
    clickOn(id);
    awaitFocus(eyes.control(id));
    bring(Front::main);
}

void Hands::focusByKey(WORD letter, int id) {
    Press(letter, {VK_MENU});
    awaitFocus(eyes.control(id));
}

void Hands::awaitFocus(HWND window) {
    await("the focus", [&] { return eyes.focus() == window; });
}

void Hands::retype(int id, const std::string& text) {
    focusOn(id);
    Press(VK_END);
    Press(VK_HOME, {VK_SHIFT});
    if (text.empty()) Press(VK_DELETE);
    Type(text);
}

void Hands::waitForInput() {
    const bool isOnRed = eyes.focus() == eyes.control(IDC_hsbRed);
    isOnRed ? focusByKey('G', IDC_hsbGreen) : focusByKey('R', IDC_hsbRed);
}

void Hands::playSliders(const Action& action) {
    switch (action.kind) {
        case Kind::sliderKeys:
            focusByKey(sliderLetters.at(action.which), IDC_hsbRed + action.which);
            PressOften(sliderKeys.at(action.value % 8), action.value / 8);
            break;
        case Kind::sliderArrow: {
            const HWND bar = eyes.control(IDC_hsbRed + action.which);
            RECT area{};
            ::GetClientRect(bar, &area);
            constexpr int inArrow = 6;
            const int left = action.value > 0 ? static_cast<int>(area.right) - inArrow : inArrow;
            clickAt(OnScreen(bar, {left, area.bottom / 2}));
            break;
        }
        case Kind::sliderDrag: {
            const LRESULT from = eyes.ask(eyes.control(IDC_hsbRed + action.which), SBM_GETPOS);
            dragSlider(action.which, static_cast<int>(from), action.value);
            break;
        }
        case Kind::barClick: clickAt(eyes.barStep(action.value)); break;
        default: break;
    }
}

/// Over the end, and to and fro until the thumb has come there: late reports of the pointer take it back.
void Hands::dragSlider(int slider, int from, int to) {
    const HWND bar = eyes.control(IDC_hsbRed + slider);
    const POINT start = huevox.thumb(IDC_hsbRed + slider, from);
    const LONG beyond = to > 0 ? 20 : -20;
    const LONG end = huevox.thumb(IDC_hsbRed + slider, to).x + beyond;
    uncover(eyes.main(), start);
    PressButton(start);
    await("the grip on a slider", [&] { return eyes.capture() == bar; });
    LONG aside = 0;
    await("a slider's end", [&] {
        aside = 1 - aside;
        MoveMouse({end + aside, start.y});
        constexpr DWORD usual = 20;
        return Soon([&] { return eyes.ask(bar, SBM_GETPOS) == to; }, usual);
    });
    ReleaseButton({end + aside, start.y});
    await("the end of a drag", [&] { return eyes.capture() == nullptr; });
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
            clickAt(OnScreen(list, {20 + nextAside(), action.value * height + height / 2}));
            break;
        }
        case Kind::notationKeys:
            focusByKey('N', IDC_lstAutocopy);
            PressSteps(VK_DOWN, VK_UP, action.value);
            break;
        default: break;
    }
}

void Hands::playPicks(const Action& action, const Look& before) {
    const int selected = before.selected;
    switch (action.kind) {
        case Kind::selectMark: clickOn(IDC_optColor + action.which); break;
        case Kind::markKeys:
            focusOn(IDC_optColor + selected);
            PressSteps(VK_RIGHT, VK_LEFT, action.value);
            break;
        case Kind::pickDrag: pick(action, before); break;
        case Kind::pickRight: {
            const POINT place = CenterOf(eyes.control(IDC_picSample + selected));
            uncover(eyes.main(), place);
            RightClick(place);
            break;
        }
        default: break;
    }
}

void Hands::playKeys(const Action& action, const Look& before) {
    switch (action.kind) {
        case Kind::barKeys:
            focusOn(IDC_optColor + before.selected);
            Press(VK_TAB);
            awaitFocus(eyes.control(IDC_lblColorBar));
            Press(action.which == 0 ? VK_HOME : VK_END);
            PressOften(action.which == 0 ? VK_RIGHT : VK_LEFT, action.value);
            Press(VK_SPACE);
            // The frame of the focus would lie over the colours.
            focusByKey('R', IDC_hsbRed);
            break;
        case Kind::swatchKeys:
            clickSwatch(action);
            Press(VK_RIGHT);
            Press(VK_SPACE);
            break;
        case Kind::tabs:
            focusByKey('R', IDC_hsbRed);
            PressOften(VK_TAB, action.value);
            break;
        default: break;
    }
}

/// Moves, as a hand does, until the preview has followed.
void Hands::pick(const Action& action, const Look& before) {
    const HWND preview = eyes.control(IDC_picPick);
    const POINT place =
        action.which < 6 ? CenterOf(eyes.control(IDC_picSample + action.which)) : eyes.barStep(action.value);
    const POINT sample = CenterOf(eyes.control(IDC_picSample + before.selected));
    uncover(eyes.main(), sample);
    PressButton(sample);
    await("a preview of the pick", [&] { return ::IsWindowVisible(preview) != FALSE; });
    // To and fro: where the button was pressed there is no movement.
    await("the pick's colour", [&] {
        ++movements;
        MoveMouse({place.x, place.y + movements % 2});
        return Pixel(CenterOf(preview)) == PickTarget(before.marks, before.selected, action);
    });
    ReleaseButton(place);
    await("the end of a pick", [&] { return ::IsWindowVisible(preview) == FALSE; });
}
