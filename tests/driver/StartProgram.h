// How does a test start a program?
#pragma once

#include <string>

#include "tests/driver/Wait.h"
#include "toolkit/platform/Text.h"

/// Starts it by a command line; both handles are the caller's. Now and then Wine refuses a process with an
/// internal error and creates it the next time.
[[nodiscard]] inline PROCESS_INFORMATION StartProgram(const std::string& commandLine,
                                                      STARTUPINFOW startup = {}) {
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    std::wstring writable = Wide(commandLine);
    const bool hasStarted = Eventually([&] {
        return ::CreateProcessW(nullptr, writable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                &startup, &process) != FALSE;
    });
    EXPECT_TRUE(hasStarted) << commandLine << ": error " << ::GetLastError();
    return process;
}
