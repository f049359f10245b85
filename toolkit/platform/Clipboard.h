// How does text get onto the system clipboard, and from there?
#pragma once

#include <string>
#include <string_view>

#include "toolkit/platform/Platform.h"

/// Clears the clipboard and puts text on it, both as ANSI and as Unicode. Does nothing while another program
/// holds the clipboard open; a later failure leaves what has been done so far.
void PutTextOnClipboard(HWND owner, std::string_view text);

/// The text that is there; "" when there is none, or while another program holds the clipboard open.
std::wstring TextOnClipboard(HWND reader);
