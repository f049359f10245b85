// What do the windows share? Main owns the one instance and hands it by reference to whoever uses it.
#pragma once

#include <string>

#include "support/Marks.h"

/// The settings as they are held in memory, from the first load on.
struct Settings {
    std::string customFormat;
    int formatIndex = 0;  ///< the notation that the program starts with, a format index
    int sortIndex = 0;    ///< 0: alphabetical, 1: by hue
    int promptToSave = 0;
    std::string standardFolder;  ///< "" until the desktop has been looked for in its place
};

struct AppState {
    Settings settings;
    int savedFormatIndex = 0;  ///< the notation that the main window's list comes back to
    bool jsNamesOnly = false;  ///< the JavaScript name is copied, whatever the notation
    std::string desktopFolder;
    Marks marks;
};
