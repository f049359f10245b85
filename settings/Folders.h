// Which folders can the program use, and how does the user choose one?
#pragma once

#include <string>
#include <string_view>

#include "toolkit/platform/Platform.h"

/// Sets desktopFolder to the desktop of the current user. False, and "", when Windows knows of none.
bool GetDesktopFolder(std::string& desktopFolder);

/// Whether path names an existing folder, its last part in exactly the letter case that it has on disk; or,
/// when it has fewer than four characters, a usable drive root such as "C:" or "C:\".
bool IsValidFolder(std::string_view path);

/// Shows the folder picker of Windows over owner. The folder that the user chose, without a closing backslash
/// unless it is a drive root; "" when the user chose none.
std::string BrowseForFolder(HWND owner);
