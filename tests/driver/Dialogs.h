// What does a message box say, and how is it answered?
#pragma once

#include <string_view>

#include "tests/driver/Huevox.h"

/// Presses a button of a message box, such as IDOK, and waits until the box is gone and its owner is back.
void Answer(HWND dialog, int button);
/// After a box or dialog: waits until the main window takes keys again, the next box is there, or the program
/// has ended. Keys that come before go nowhere.
void WaitForReturn(const Huevox& huevox);

/// Waits for a message of the program's and expects that text. nullptr when none comes.
[[nodiscard]] HWND WaitForMessage(const Huevox& huevox, std::string_view text);
/// The same, and closes it.
void CloseMessage(const Huevox& huevox, std::string_view text);
/// Applies a value that is refused and waits for the message.
[[nodiscard]] HWND BringRefusal(const Huevox& huevox);

/// Whether a message box shows that icon of Windows, such as IDI_EXCLAMATION, pixel by pixel.
bool ShowsIcon(HWND box, LPCWSTR icon);
