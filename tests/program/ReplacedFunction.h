// How does a test let Windows refuse what it does not refuse here?
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <utility>

#include "toolkit/platform/Platform.h"

/// The place in this program's import table that holds the address of a routine of Windows, or nullptr.
inline void** ImportOf(const void* routine) {
    auto* const base = reinterpret_cast<std::byte*>(::GetModuleHandleA(nullptr));
    const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const DWORD table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    const auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + table);
    for (; library->Name != 0; ++library) {
        for (auto* entry = reinterpret_cast<void**>(base + library->FirstThunk); *entry; ++entry) {
            if (*entry == routine) return entry;
        }
    }
    return nullptr;
}

/// For as long as the value lives, this program reaches a stand-in instead of a routine of Windows; the
/// stand-in is handed the routine itself before its arguments. The same stand-in is never used twice at a
/// time.
template <class Result, class StandIn, class... Arguments>
class ReplacedFunction {
public:
    using Routine = Result(WINAPI*)(Arguments...);

    ReplacedFunction(Routine routine, StandIn standIn)
        : import(ImportOf(reinterpret_cast<void*>(routine))), standIn(std::move(standIn)), original(routine) {
        EXPECT_TRUE(import);
        current = this;
        write(reinterpret_cast<void*>(&call));
    }
    ReplacedFunction(const ReplacedFunction&) = delete;
    ReplacedFunction& operator=(const ReplacedFunction&) = delete;
    ~ReplacedFunction() { write(reinterpret_cast<void*>(original)); }

private:
    static Result WINAPI call(Arguments... arguments) {
        return current->standIn(current->original, arguments...);
    }
    void write(void* address) const {
        DWORD before = 0;
        ::VirtualProtect(static_cast<void*>(import), sizeof address, PAGE_READWRITE, &before);
        *import = address;
        ::VirtualProtect(static_cast<void*>(import), sizeof address, before, &before);
    }

    inline static ReplacedFunction* current = nullptr;
    void** import;
    StandIn standIn;
    Routine original;
};

template <class Result, class StandIn, class... Arguments>
ReplacedFunction(Result(WINAPI*)(Arguments...), StandIn) -> ReplacedFunction<Result, StandIn, Arguments...>;

/// What a routine of Windows answers that refuses, with the reason that GetLastError then gives.
inline BOOL Refused(DWORD error) {
    ::SetLastError(error);
    return FALSE;
}
