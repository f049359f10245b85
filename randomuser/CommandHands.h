// How is a command of the main window run?
#pragma once

#include <map>

#include "randomuser/Reach.h"
#include "tests/driver/Huevox.h"

/// How a command is reached by its shortcut, by the tool bar and by the menu.
struct Command {
    WORD shortcut;
    bool isWithControl;
    int button;
    WORD menu;
    WORD item;
};

class CommandHands {
public:
    CommandHands(const Huevox& huevox, Eyes& eyes, Reach& reach) : huevox(huevox), eyes(eyes), reach(reach) {}

    /// way: 0 by key, 1 by the tool bar, 2 by the menu.
    void run(const Command& command, int way);
    void chooseFromMenu(WORD menu, WORD item);
    /// way: 0 by Alt+F4, 1 by the system menu, 2 by the menu.
    void closeMain(int way);
    /// The help that has been asked for.
    void closeHelp();

private:
    POINT toolButton(int command);

    const Huevox& huevox;
    Eyes& eyes;
    Reach& reach;
    std::map<int, POINT> toolButtons;
};
