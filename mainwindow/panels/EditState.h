// What tells the program's own writes from the user's edits?
#pragma once

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
