// What does a message box say, and how is it answered?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"

/// The text of a message box.
std::string MessageOf(HWND dialog);
/// Presses a button of a message box, such as IDOK, and waits until the box is gone and its owner is back.
void Answer(HWND dialog, int button);
