// Which file does a save really write, and how may it?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"

/// The file itself, behind all links.
struct FileTarget {
    enum class Kind {
        absent,       ///< It may be made.
        replaceable,  ///< It may be written, and another file may be put in its place.
        writable      ///< It may be written, but must stay where it is.
    };

    std::wstring path;  ///< full, and of any length
    Kind kind = Kind::absent;
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
};

/// Throws std::runtime_error when it is no file, may not be written, or others keep it from being written.
FileTarget FindTarget(const std::wstring& path);
