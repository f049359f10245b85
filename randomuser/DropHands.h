// How are files dropped on the main window?
#pragma once

#include <string>

#include "randomuser/Reach.h"

class DropHands {
public:
    DropHands(Eyes& eyes, Reach& reach) : eyes(eyes), reach(reach) {}

    /// others: so many are dropped with the first, and come after it.
    void drop(const std::string& first, int others);

private:
    Eyes& eyes;
    Reach& reach;
};
