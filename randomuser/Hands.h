// How is an action played by real keys and mouse?
#pragma once

#include "randomuser/BoxHands.h"
#include "randomuser/CommandHands.h"
#include "randomuser/DropHands.h"
#include "randomuser/OtherProgram.h"
#include "randomuser/PanelHands.h"
#include "randomuser/PickHands.h"
#include "randomuser/PickerHands.h"
#include "randomuser/SystemMenuHands.h"

/// Acts on the running program. What depends on its state is taken from what must have been seen before.
struct Hands {
    /// patience: for how many milliseconds they wait for what an action needs.
    Hands(const Huevox& huevox, Eyes& eyes, OtherProgram& other, DWORD patience)
        : eyes(eyes),
          other(other),
          reach(eyes, patience),
          panels(huevox, eyes, reach),
          picks(eyes, reach),
          commands(huevox, eyes, reach),
          pickers(huevox, eyes, reach),
          boxes(eyes, reach),
          drops(eyes, reach),
          systemMenu(eyes, reach) {}
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;
    ~Hands() = default;

    /// What the action has needed and has waited for in vain, or "".
    std::string play(const Action& action, const Look& before);

    Eyes& eyes;
    OtherProgram& other;
    Reach reach;
    PanelHands panels;
    PickHands picks;
    CommandHands commands;
    PickerHands pickers;
    BoxHands boxes;
    DropHands drops;
    SystemMenuHands systemMenu;
};
