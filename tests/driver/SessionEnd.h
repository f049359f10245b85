// How does a test end the user's session?
#pragma once

#include <future>

#include "tests/driver/Huevox.h"

/// Asks whether the session may end: on another thread, because the answer may need the user.
[[nodiscard]] inline std::future<bool> AskForSessionEnd(const Huevox& huevox) {
    return std::async(std::launch::async, [window = huevox.window()] {
        return ::SendMessageA(window, WM_QUERYENDSESSION, 0, 0) != FALSE;
    });
}
