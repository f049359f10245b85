// How does a benchmark let the program catch up?
#pragma once

#include "toolkit/Platform.h"

/// Dispatches all messages that are waiting.
inline void PumpAll() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageA(&message);
}
