// Which files does the program find when it starts?
#pragma once

#include <map>
#include <optional>
#include <string>

#include "randomuser/model/PaletteText.h"

/// Where the files of the session stand.
inline constexpr const char* filesFolder = "C:\\Huevox Soak";
inline constexpr const char* secondFolder = "C:\\Huevox Soak\\other";

struct File {
    std::string text;
    bool isReadOnly = false;
    std::optional<SixMarks> palette = {};  ///< nothing when it is none
    bool isLong = false;                   ///< more than 1,000 lines
};
using Files = std::map<std::string, File>;

Files FilesAtStart();
