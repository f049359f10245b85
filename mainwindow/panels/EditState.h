// What tells the program's own writes from the user's edits?
#pragma once

#include <utility>

#include "mainwindow/panels/ClipTicks.h"

/// False until loading has ended, where nothing else is said.
struct EditState {
    bool userColorChange = false;     ///< colour changes come from the user and count as edits
    bool sliderSync = false;          ///< slider events apply the sliders to the selected mark
    bool editorSync = true;           ///< a change of a typed value is the user's
    bool nameFillInProgress = false;  ///< a command is writing the name boxes
    bool nameBoxLeft = true;          ///< a name box has lost the focus since the last click into one
    ClipTicks clipTicks;
};

/// Sets a flag to a value for a scope; on every way out it is what it was before.
template <bool value>
class FlagGuard {
public:
    explicit FlagGuard(bool& flag) : flag(flag), before(std::exchange(flag, value)) {}
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;
    ~FlagGuard() { flag = before; }

private:
    bool& flag;
    bool before;
};

using Cleared = FlagGuard<false>;
using Raised = FlagGuard<true>;

/// One turn of a routine that yields: a newer turn, let in meanwhile, has shown a newer colour.
class Turn {
public:
    explicit Turn(unsigned& turns) : turns(turns), mine(++turns) {}

    bool isOvertaken() const { return turns != mine; }

private:
    unsigned& turns;
    unsigned mine;
};
