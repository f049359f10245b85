// How is a palette file opened in Notepad?
#pragma once

#include <string>

/// The folder of Windows, with a closing backslash.
std::string GetWindowsFolder();

/// Starts Notepad in a normal window. Throws std::runtime_error when it does not start.
void StartNotepad(const std::string& path);
