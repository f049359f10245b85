#include "palette/KeptTraits.h"

#include <cstddef>
#include <string_view>
#include <vector>

#include "palette/OpenedFile.h"

namespace {

using OwnedSearch = Owned<HANDLE, &::FindClose>;
using Bytes = std::vector<std::byte>;

bool HasCreationTime(const std::wstring& path, const std::wstring& from) {
    const OwnedFile old = Opened(from, {FILE_READ_ATTRIBUTES, sharedByAll});
    const OwnedFile file = Opened(path, {FILE_WRITE_ATTRIBUTES, sharedByAll});
    FILETIME time{};
    return ::GetFileTime(old.get(), &time, nullptr, nullptr) &&
           ::SetFileTime(file.get(), &time, nullptr, nullptr);
}

/// The file was made with them, but in Wine 10 it loses them when its time is set.
bool HasAttributes(const std::wstring& path, const std::wstring& from) {
    return ::SetFileAttributesW(path.c_str(), KeptAttributes(::GetFileAttributesW(from.c_str()))) != FALSE;
}

bool HasContent(const std::wstring& path, const std::wstring& from) {
    constexpr DWORD blockSize = 64 * 1024;
    const OwnedFile old = OpenedSoon(from, {GENERIC_READ, sharedByAll});
    if (!old) return false;
    const OwnedFile file = OpenedSoon(path, {GENERIC_WRITE, sharedByAll, OPEN_ALWAYS});
    if (!file) return false;
    std::vector<char> block(blockSize);
    DWORD size = 0;
    do {
        if (!::ReadFile(old.get(), block.data(), blockSize, &size, nullptr)) return false;
        if (!HasWritten(file, {block.data(), size})) return false;
    } while (size > 0);
    return true;
}

/// A file from the internet has one that says so; a file system without streams refuses to look for them.
bool HasStreams(const std::wstring& path, const std::wstring& from) {
    WIN32_FIND_STREAM_DATA stream{};
    const HANDLE found = ::FindFirstStreamW(from.c_str(), FindStreamInfoStandard, &stream, 0);
    if (found == INVALID_HANDLE_VALUE) return true;
    const OwnedSearch search(found);
    constexpr std::wstring_view text = L"::$DATA";
    do {
        const std::wstring name = stream.cStreamName;
        if (name != text && !HasContent(path + name, from + name)) return false;
    } while (::FindNextStreamW(search.get(), &stream));
    return ::GetLastError() == ERROR_HANDLE_EOF;
}

/// Empty where the file system knows no rights.
Bytes RightsOf(const std::wstring& path) {
    DWORD size = 0;
    ::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    Bytes rights(size);
    const BOOL isRead =
        ::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size);
    return isRead ? rights : Bytes();
}

/// Most files have the rights that any new one in their folder gets. Only others are set, because many a
/// share on a network lets its users write but not set rights.
bool HasRights(const std::wstring& path, const std::wstring& from) {
    Bytes rights = RightsOf(from);
    if (rights.empty() || rights == RightsOf(path)) return true;
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    ::GetSecurityDescriptorControl(rights.data(), &control, &revision);
    // Windows keeps the mark of inherited rights only when asked to.
    if ((control & SE_DACL_AUTO_INHERITED) != 0) {
        ::SetSecurityDescriptorControl(rights.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    }
    return ::SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, rights.data()) != FALSE;
}

}  // namespace

DWORD KeptAttributes(DWORD attributes) {
    constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                           FILE_ATTRIBUTE_NOT_CONTENT_INDEXED | FILE_ATTRIBUTE_ENCRYPTED;
    // Whoever makes backups takes what this attribute marks as changed.
    return (attributes & kept) | FILE_ATTRIBUTE_ARCHIVE;
}

bool HasTakenOver(const std::wstring& file, const std::wstring& from) {
    // The rights come last: they may not allow the rest.
    return HasCreationTime(file, from) && HasAttributes(file, from) && HasStreams(file, from) &&
           HasRights(file, from);
}
