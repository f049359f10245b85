// How does a test drop files onto the main window?
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/driver/Huevox.h"
#include "tests/driver/StartProgram.h"
#include "toolkit/platform/Text.h"

/// Drops them whether or not the window takes any. False when they have not come to it.
inline bool Drop(HWND window, const std::vector<std::string>& paths) {
    // That of the current folder, whose word length is the program's: Windows would look beside the tests
    // first.
    const std::string program = Utf8(std::filesystem::absolute(HUEVOX_DROPPER).wstring());
    std::string line = '"' + program + "\" " + std::to_string(reinterpret_cast<UINT_PTR>(window));
    for (const std::string& path : paths) line += " \"" + path + '"';
    const PROCESS_INFORMATION dropper = StartProgram(line);
    EXPECT_TRUE(Eventually([&] { return ::WaitForSingleObject(dropper.hProcess, 0) == WAIT_OBJECT_0; }));
    DWORD result = 1;
    ::GetExitCodeProcess(dropper.hProcess, &result);
    EXPECT_EQ(result, 0U) << line;
    ::CloseHandle(dropper.hThread);
    ::CloseHandle(dropper.hProcess);
    return result == 0;
}

/// Whether the pointer over the window shows that files can be dropped there.
inline bool TakesDrops(HWND window) {
    return (::GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_ACCEPTFILES) != 0;
}
