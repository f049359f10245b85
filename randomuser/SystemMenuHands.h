// How is the main window's own menu used?
#pragma once

#include "randomuser/Reach.h"

class SystemMenuHands {
public:
    SystemMenuHands(Eyes& eyes, Reach& reach) : eyes(eyes), reach(reach) {}

    /// wasOnTop: what the check mark in the menu must show until then.
    void switchOnTop(bool isByKeys, bool wasOnTop);

private:
    void choose(bool wasOnTop);

    Eyes& eyes;
    Reach& reach;
};
