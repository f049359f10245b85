#include "randomuser/CommandHands.h"

#include "tests/driver/Input.h"

void CommandHands::run(const Command& command, int way) {
    if (way == 1) {
        reach.clickAt(toolButton(command.button));
    } else if (way == 2) {
        chooseFromMenu(command.menu, command.item);
    } else if (command.isWithControl) {
        Press(command.shortcut, {VK_CONTROL});
    } else {
        Press(command.shortcut);
    }
}

/// The letter of an item counts when its menu is open. Elsewhere it would choose a notation, or be typed.
void CommandHands::chooseFromMenu(WORD menu, WORD item) {
    Press(menu, {VK_MENU});
    reach.await("a menu", [&] { return eyes.isInMenu(); });
    if (reach.isAll()) Press(item);
}

/// The bar does not move.
POINT CommandHands::toolButton(int command) {
    const auto known = toolButtons.find(command);
    if (known != toolButtons.end()) return known->second;
    return toolButtons[command] = huevox.toolButton(command);
}

void CommandHands::closeMain(int way) {
    reach.waitForInput();
    if (way == 0) Press(VK_F4, {VK_MENU});
    if (way == 1) ::PostMessageA(eyes.main(), WM_SYSCOMMAND, SC_CLOSE, 0);
    if (way == 2) chooseFromMenu('F', 'E');
}

void CommandHands::closeHelp() {
    HWND help = nullptr;
    reach.await("the help", [&] {
        help = ::FindWindowA("HH Parent", nullptr);
        return help && ::IsWindowVisible(help);
    });
    ::PostMessageA(help, WM_CLOSE, 0, 0);
    reach.await("the end of the help", [&] { return !::IsWindow(help) || !::IsWindowVisible(help); });
    reach.bring(Front::main);
}
