// What tells the program's own writes from the user's edits, in more than one panel?
#pragma once

/// False until loading has ended.
struct EditState {
    bool userColorChange = false;     ///< colour changes come from the user and count as edits
    bool sliderSync = false;          ///< slider events apply the sliders to the selected mark
    bool nameFillInProgress = false;  ///< a command is writing the name boxes
    bool colorInProgress = false;     ///< a colour is on its way to the selected mark and its views
};
