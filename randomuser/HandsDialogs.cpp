#include <array>

#include "randomuser/Hands.h"
#include "resources/resource.h"
#include "tests/driver/Input.h"

void Hands::choosePath(const std::string& path, bool isForNotepad) {
    const HWND field = Eyes::nameField(eyes.box());
    eyes.ask(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
    Press(VK_RETURN);
    if (isForNotepad) closeNotepad();
}

void Hands::closeNotepad() {
    HWND notepad = nullptr;
    await("Notepad", [&] { return (notepad = ::FindWindowA("Notepad", nullptr)) != nullptr; });
    ::PostMessageA(notepad, WM_CLOSE, 0, 0);
    await("the end of Notepad", [&] { return !::IsWindow(notepad); });
    bring(Front::main);
}

/// By its key, or by a click on the button.
void Hands::answer(const Action& action) {
    constexpr int ok = 1;
    constexpr int cancel = 2;
    constexpr int yes = 6;
    const HWND box = eyes.box();
    const HWND button = ::GetDlgItem(box, action.value);
    if (action.which == 2) {
        clickInBox(button);
    } else if (action.value == ok) {
        Press(VK_RETURN);
    } else if (action.value == cancel) {
        Press(VK_ESCAPE);
    } else {
        Press(action.value == yes ? 'Y' : 'N', {VK_MENU});
    }
    await("the end of a box", [&] { return !::IsWindow(box); });
}

void Hands::clickInBox(HWND button) {
    const POINT place = CenterOf(button);
    uncover(::GetAncestor(button, GA_ROOT), place);
    Click(place);
}

void Hands::moveTo(HWND window, POINT place) {
    ::SetWindowPos(window, nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Hands::playDialogs(const Action& action) {
    constexpr std::array<WORD, 4> optionKeys = {'Y', 'N', 'A', 'V'};
    switch (action.kind) {
        case Kind::chooseRow:
            Press('S', {VK_MENU});
            awaitFocus(::GetDlgItem(eyes.box(), IDC_lstStandardFormat));
            Press(VK_HOME);
            for (int row = 0; row < action.value; ++row) Press(VK_DOWN);
            break;
        case Kind::chooseOption: Press(optionKeys.at(action.value), {VK_MENU}); break;
        case Kind::typeFormat:
            Press('T', {VK_MENU});
            awaitFocus(::GetDlgItem(eyes.box(), IDC_txtFormat));
            Press(VK_HOME);
            Press(VK_END, {VK_SHIFT});
            Press(VK_DELETE);
            Type(action.text);
            break;
        case Kind::insertToken: clickInBox(::GetDlgItem(eyes.box(), IDC_cmdUR + action.value)); break;
        case Kind::closeDialog:
            if (action.which == 0) Press(action.value == IDC_cmdOK ? VK_RETURN : VK_ESCAPE);
            if (action.which == 1) Press(action.value == IDC_cmdOK ? 'O' : 'C', {VK_MENU});
            break;
        default: break;
    }
}

void Hands::vainClick(int mark) const {
    const POINT place = CenterOf(eyes.control(IDC_optColor + mark));
    // Not where the box lies over it.
    if (::GetAncestor(::WindowFromPoint(place), GA_ROOT) == eyes.main()) Click(place);
}

void Hands::closeHelp() {
    HWND help = nullptr;
    await("the help", [&] {
        help = ::FindWindowA("HH Parent", nullptr);
        return help && ::IsWindowVisible(help);
    });
    ::PostMessageA(help, WM_CLOSE, 0, 0);
    await("the end of the help", [&] { return !::IsWindow(help) || !::IsWindowVisible(help); });
    bring(Front::main);
}

/// The letter of an item counts when its menu is open. Elsewhere it would choose a notation, or be typed.
void Hands::chooseFromMenu(int menu, int item) {
    Press(static_cast<WORD>(menu), {VK_MENU});
    await("a menu", [&] { return eyes.isInMenu(); });
    if (missing.empty()) Press(static_cast<WORD>(item));
}
