// How is a file opened that others may be looking at?
#pragma once

#include <string>
#include <string_view>

#include "toolkit/platform/Handles.h"

using OwnedFile = Owned<HANDLE, &::CloseHandle>;

inline constexpr DWORD sharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// What a file is opened for, what others may do to it meanwhile, and what becomes of one that exists or does
/// not.
struct Opening {
    DWORD access;
    DWORD sharing;
    DWORD creation = OPEN_EXISTING;
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
};

/// Throws std::runtime_error unless Windows has done what it was asked to.
void Check(bool hasSucceeded);

/// Empty when Windows refuses; GetLastError then tells why.
OwnedFile Opened(const std::wstring& path, const Opening& opening);
/// The same, after a while even if others have the file open now.
OwnedFile OpenedSoon(const std::wstring& path, const Opening& opening);

/// Writes from where the last reading or writing ended.
bool HasWritten(const OwnedFile& file, std::string_view text);
/// Whether all that was written is on the disk.
bool IsFlushed(const OwnedFile& file);

/// Virus scanners and indexers open a file for a moment: tries again and again, for a while.
template <class Attempt>
bool Succeeds(Attempt attempt) {
    constexpr int attempts = 10;
    constexpr DWORD pause = 20;
    bool hasSucceeded = attempt();
    for (int retries = 1; retries < attempts && !hasSucceeded; ++retries) {
        ::Sleep(pause);
        hasSucceeded = attempt();
    }
    return hasSucceeded;
}
