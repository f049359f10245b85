#include <array>

#include "randomuser/Hands.h"
#include "randomuser/Soon.h"
#include "resources/resource.h"
#include "tests/ui/Input.h"

void Hands::choosePath(const std::string& path, bool isForNotepad) const {
    const HWND dialog = eyes.box();
    const HWND field = Eyes::nameField(dialog);
    eyes.ask(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
    Press(VK_RETURN);
    if (!isForNotepad) return;
    HWND notepad = nullptr;
    constexpr DWORD longEnough = 20'000;
    Soon([&] { return (notepad = ::FindWindowA("Notepad", nullptr)) != nullptr; }, longEnough);
    ::PostMessageA(notepad, WM_CLOSE, 0, 0);
    Soon([&] { return !::IsWindow(notepad); });
    bring(Front::main);
}

/// By its key, or by a click on the button; a click that the box has moved away from is made up for.
void Hands::answer(const Action& action) const {
    const HWND box = eyes.box();
    const HWND button = ::GetDlgItem(box, action.value);
    constexpr DWORD usual = 1000;
    const auto isGone = [&] { return !::IsWindow(box); };
    if (action.which == 2) {
        Click(steadyCenter(button));
    } else {
        constexpr int ok = 1;
        constexpr int cancel = 2;
        constexpr int yes = 6;
        if (action.value == ok) Press(VK_RETURN);
        if (action.value == cancel) Press(VK_ESCAPE);
        if (action.value > cancel) Press(action.value == yes ? 'Y' : 'N', {VK_MENU});
    }
    if (Soon(isGone, usual)) return;
    ::PostMessageA(button, BM_CLICK, 0, 0);
    Soon(isGone);
}

/// Once the window has been at its place for a while: a new one may move under the pointer.
POINT Hands::steadyCenter(HWND window) {
    constexpr DWORD aWhile = 100;
    POINT place = CenterOf(window);
    Soon([&] {
        const POINT before = place;
        return !Soon(
            [&] {
                place = CenterOf(window);
                return place.x != before.x || place.y != before.y;
            },
            aWhile);
    });
    return place;
}

void Hands::moveTo(HWND window, POINT place) {
    steadyCenter(window);
    ::SetWindowPos(window, nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    steadyCenter(window);
}

void Hands::playDialogs(const Action& action) {
    constexpr std::array<WORD, 4> optionKeys = {'Y', 'N', 'A', 'V'};
    switch (action.kind) {
        case Kind::chooseRow:
            Press('S', {VK_MENU});
            Press(VK_HOME);
            for (int row = 0; row < action.value; ++row) Press(VK_DOWN);
            break;
        case Kind::chooseOption: Press(optionKeys.at(action.value), {VK_MENU}); break;
        case Kind::typeFormat:
            Press('T', {VK_MENU});
            Press(VK_HOME);
            Press(VK_END, {VK_SHIFT});
            Press(VK_DELETE);
            Type(action.text);
            break;
        case Kind::insertToken:
            Click(steadyCenter(::GetDlgItem(eyes.box(), IDC_cmdUR + action.value)));
            break;
        case Kind::closeDialog:
            if (action.which == 0) Press(action.value == IDC_cmdOK ? VK_RETURN : VK_ESCAPE);
            if (action.which == 1) Press(action.value == IDC_cmdOK ? 'O' : 'C', {VK_MENU});
            break;
        default: break;
    }
}

void Hands::vainClick(int mark) const {
    steadyCenter(eyes.box());
    const POINT place = CenterOf(eyes.control(IDC_optColor + mark));
    // Not where the box lies over it.
    if (::GetAncestor(::WindowFromPoint(place), GA_ROOT) == eyes.main()) Click(place);
}

void Hands::closeHelp() const {
    constexpr DWORD longEnough = 20'000;
    HWND help = nullptr;
    Soon([&] { return (help = ::FindWindowA("HH Parent", nullptr)) != nullptr && ::IsWindowVisible(help); },
         longEnough);
    ::PostMessageA(help, WM_CLOSE, 0, 0);
    Soon([&] { return !::IsWindow(help) || !::IsWindowVisible(help); }, longEnough);
    bring(Front::main);
}

/// The letter of an item counts when its menu is open. Elsewhere it would choose a notation, or be typed.
void Hands::chooseFromMenu(int menu, int item) const {
    Press(static_cast<WORD>(menu), {VK_MENU});
    if (Soon([&] { return eyes.isInMenu(); })) Press(static_cast<WORD>(item));
}
