// How does a benchmark run the program in a process of its own?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"

/// The program with its main window shown, until the value goes.
class OtherProgram {
public:
    explicit OtherProgram(const std::string& program) {
        std::string command = program;
        STARTUPINFOA startup{};
        startup.cb = sizeof startup;
        ::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                         &process);
        ::WaitForInputIdle(process.hProcess, longestStart);
        window = ::FindWindowA("frmMain", nullptr);
        ::SendMessageA(window, WM_NULL, 0, 0);
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram() {
        ::TerminateProcess(process.hProcess, 0);
        ::WaitForSingleObject(process.hProcess, longestStart);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
    }

    HWND form() const { return window; }

private:
    static constexpr DWORD longestStart = 10'000;
    PROCESS_INFORMATION process{};
    HWND window = nullptr;
};
