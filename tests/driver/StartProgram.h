// How does a test start a program?
#pragma once

#include <string>

#include "tests/driver/Wait.h"

/// Starts it by a command line; both handles are the caller's. Now and then Wine refuses a process with an
/// internal error and creates it the next time.
[[nodiscard]] inline PROCESS_INFORMATION StartProgram(std::string commandLine, STARTUPINFOA startup = {}) {
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    const bool hasStarted = Eventually([&] {
        return ::CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                &startup, &process) != FALSE;
    });
    EXPECT_TRUE(hasStarted) << commandLine << ": error " << ::GetLastError();
    return process;
}
