// How does a test make the running program call Windows?
#pragma once

#include <string_view>

#include "tests/driver/Wait.h"

/// The process that a window belongs to.
class ProcessOf {
public:
    explicit ProcessOf(HWND window) {
        DWORD id = 0;
        ::GetWindowThreadProcessId(window, &id);
        process = ::OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
    }
    ProcessOf(const ProcessOf&) = delete;
    ProcessOf& operator=(const ProcessOf&) = delete;
    ~ProcessOf() { ::CloseHandle(process); }

    HANDLE handle() const { return process; }
    /// A text in the process's own memory, until the process ends.
    void* place(std::string_view text) const {
        void* placed = ::VirtualAllocEx(process, nullptr, text.size() + 1, MEM_COMMIT, PAGE_READWRITE);
        ::WriteProcessMemory(process, placed, text.data(), text.size(), nullptr);
        return placed;
    }
    /// What a routine of a library of Windows answers when a thread of that process calls it. The libraries
    /// of Windows lie at the same place in every process of one word length.
    DWORD call(const char* library, const char* routine, void* argument = nullptr) const {
        const FARPROC address = ::GetProcAddress(::GetModuleHandleA(library), routine);
        const auto start = reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(address));
        const HANDLE thread = ::CreateRemoteThread(process, nullptr, 0, start, argument, 0, nullptr);
        EXPECT_TRUE(Eventually([&] { return ::WaitForSingleObject(thread, 0) == WAIT_OBJECT_0; })) << routine;
        DWORD answer = 0;
        ::GetExitCodeThread(thread, &answer);
        ::CloseHandle(thread);
        return answer;
    }

private:
    HANDLE process = nullptr;
};
