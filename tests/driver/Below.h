// How does a test do to files what no program of the platform may?
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "toolkit/platform/Platform.h"

/// The path that the system below the platform knows a file by.
inline std::string SystemPathOf(const wchar_t* path) {
    using Translate = char*(CDECL*)(LPCWSTR);
    const FARPROC address = ::GetProcAddress(::GetModuleHandleA("kernel32"), "wine_get_unix_file_name");
    const auto translate = reinterpret_cast<Translate>(reinterpret_cast<void*>(address));
    char* found = translate(path);
    std::string result = found;
    ::HeapFree(::GetProcessHeap(), 0, found);
    return result;
}

/// Runs a command of the system below.
inline void RunBelow(const std::string& program, const std::string& arguments) {
    std::string command = "Z:\\bin\\" + program + ' ' + arguments;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    ASSERT_TRUE(::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                 &startup, &process));
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}
