// How does a test do to files what no program of Windows may?
#pragma once

#include <string>

#include "tests/driver/StartProgram.h"

/// The path by which the system below Windows knows a file.
inline std::string SystemPathOf(const wchar_t* path) {
    using Translate = char*(CDECL*)(LPCWSTR);
    const FARPROC address = ::GetProcAddress(::GetModuleHandleA("kernel32"), "wine_get_unix_file_name");
    const auto translate = reinterpret_cast<Translate>(reinterpret_cast<void*>(address));
    char* found = translate(path);
    std::string result = found;
    ::HeapFree(::GetProcessHeap(), 0, found);
    return result;
}

/// Runs a command of the system below. Wine has no handles of it and leaves in their place what was in its
/// memory: whoever closed that would close any handle of this process, the clipboard's for instance.
inline void RunBelow(const std::string& program, const std::string& arguments) {
    static_cast<void>(StartProgram("Z:\\bin\\" + program + ' ' + arguments));
}

/// Removes a folder with all that is in it, though a program of Windows may be in it.
inline void RemoveFolderBelow(const std::string& folder) {
    RunBelow("rm", "-rf \"" + SystemPathOf(std::wstring(folder.begin(), folder.end()).c_str()) + '"');
    ASSERT_TRUE(Eventually([&] { return ::GetFileAttributesA(folder.c_str()) == INVALID_FILE_ATTRIBUTES; }))
        << folder;
}
