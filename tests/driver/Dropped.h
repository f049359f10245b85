// How does the list of dropped files come from the program that drops them into the one that takes them?
#pragma once

#include <shlobj.h>

#include <array>

#include "toolkit/platform/Platform.h"

inline constexpr const wchar_t* droppedMapping = L"HuevoxDropped";

/// In shared memory of that name.
struct DroppedFiles {
    UINT64 window;
    DROPFILES header;
    std::array<wchar_t, 4096> paths;  ///< each ends with a NUL, and so does the list
};
