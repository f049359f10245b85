#include "randomuser/BoxHands.h"

#include <array>

#include "resources/resource.h"
#include "tests/driver/Input.h"
#include "toolkit/platform/Text.h"

namespace {

constexpr int okButton = 1;
constexpr int cancelButton = 2;
constexpr int yesButton = 6;

void PressKeyOf(int button) {
    if (button == okButton) return Press(VK_RETURN);
    if (button == cancelButton) return Press(VK_ESCAPE);
    Press(button == yesButton ? 'Y' : 'N', {VK_MENU});
}

}  // namespace

void BoxHands::answer(int button, bool isByMouse) {
    const HWND box = eyes.box();
    isByMouse ? reach.clickInBox(::GetDlgItem(box, button)) : PressKeyOf(button);
    reach.await("the end of a box", [&] { return !::IsWindow(box); });
}

void BoxHands::choosePath(const std::string& path) {
    const HWND field = Eyes::nameField(eyes.box());
    eyes.ask(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(path).c_str()));
    Press(VK_RETURN);
}

void BoxHands::closeNotepad() {
    HWND notepad = nullptr;
    reach.await("Notepad", [&] { return (notepad = ::FindWindowA("Notepad", nullptr)) != nullptr; });
    ::PostMessageA(notepad, WM_CLOSE, 0, 0);
    reach.await("the end of Notepad", [&] { return !::IsWindow(notepad); });
    reach.bring(Front::main);
}

void BoxHands::chooseRow(int row) {
    Press('S', {VK_MENU});
    reach.awaitFocus(::GetDlgItem(eyes.box(), IDC_lstStandardFormat));
    Press(VK_HOME);
    for (int below = 0; below < row; ++below) Press(VK_DOWN);
}

void BoxHands::chooseOption(int option) {
    constexpr std::array<WORD, 4> keys = {'Y', 'N', 'A', 'V'};
    Press(keys.at(option), {VK_MENU});
}

void BoxHands::typeFormat(const std::string& text) {
    Press('T', {VK_MENU});
    reach.awaitFocus(::GetDlgItem(eyes.box(), IDC_txtFormat));
    Press(VK_HOME);
    Press(VK_END, {VK_SHIFT});
    Press(VK_DELETE);
    Type(text);
}

void BoxHands::insertToken(int token) { reach.clickInBox(::GetDlgItem(eyes.box(), IDC_cmdUR + token)); }

void BoxHands::close(bool isAccepted, bool isByLetter) {
    if (isByLetter) return Press(isAccepted ? 'O' : 'C', {VK_MENU});
    PressKeyOf(isAccepted ? okButton : cancelButton);
}

void BoxHands::clickInVain(int mark) const {
    const POINT place = CenterOf(eyes.control(IDC_optColor + mark));
    // Not where the box lies over it.
    if (::GetAncestor(::WindowFromPoint(place), GA_ROOT) == eyes.main()) Click(place);
}
