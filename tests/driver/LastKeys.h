// What did the last keys meet?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"

/// Keeps what the key meets that has just been pressed: the focus, and the modifier keys that Windows holds
/// down.
void RememberKey(WORD key);

/// The last of them, the latest at the end, to tell why one was lost.
std::string LastKeys();
