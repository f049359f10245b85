// How does text get onto the system clipboard?
#pragma once

#include <string_view>

#include "toolkit/platform/Platform.h"

/// Clears the clipboard and puts text on it, as ANSI and as Unicode text of the same characters. Does nothing
/// when another program holds the clipboard open; a failure later on leaves what has been done.
void PutTextOnClipboard(HWND owner, std::string_view text);
