#include "palette/FileTarget.h"

#include "palette/FilePaths.h"
#include "palette/OpenedFile.h"

namespace {

std::wstring FullPath(const std::wstring& path) {
    std::wstring full(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(::GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    Check(!full.empty());
    return full;
}

/// "" on a volume that has no letter, and where the file system does not tell.
std::wstring PathBehindLinks(const OwnedFile& file) {
    std::wstring path(::GetFinalPathNameByHandleW(file.get(), nullptr, 0, VOLUME_NAME_DOS), L'\0');
    const auto size = static_cast<DWORD>(path.size());
    path.resize(::GetFinalPathNameByHandleW(file.get(), path.data(), size, VOLUME_NAME_DOS));
    return path;
}

bool IsLink(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

/// Windows puts a file in the place of one that may not be written, if only its folder allows that; so each
/// right is asked for.
FileTarget::Kind KindOf(const std::wstring& path) {
    if (OpenedSoon(path, {GENERIC_WRITE | DELETE, sharedByAll})) return FileTarget::Kind::replaceable;
    Check(::GetLastError() == ERROR_ACCESS_DENIED);
    Check(static_cast<bool>(OpenedSoon(path, {GENERIC_WRITE, sharedByAll})));
    return FileTarget::Kind::writable;
}

FileTarget WithoutFile(std::wstring path) {
    const DWORD error = ::GetLastError();
    Check(error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND);
    // A link that leads nowhere stays one: writing through it makes what it leads to.
    const bool leadsNowhere = IsLink(path);
    return {std::move(path), leadsNowhere ? FileTarget::Kind::writable : FileTarget::Kind::absent};
}

}  // namespace

FileTarget FindTarget(const std::wstring& path) {
    std::wstring given = WithoutLimit(FullPath(path));
    constexpr DWORD nothingButItsName = 0;
    const OwnedFile found = Opened(given, {nothingButItsName, sharedByAll});
    if (!found) return WithoutFile(std::move(given));
    // Some names, such as NUL, are those of devices.
    Check(::GetFileType(found.get()) == FILE_TYPE_DISK);
    std::wstring behindLinks = PathBehindLinks(found);
    if (behindLinks.empty()) {
        // To replace a link by its own name would be the end of the link.
        const bool isLink = IsLink(given);
        behindLinks = std::move(given);
        if (isLink) return {std::move(behindLinks), FileTarget::Kind::writable};
    }
    const FileTarget::Kind kind = KindOf(behindLinks);
    const DWORD attributes = ::GetFileAttributesW(behindLinks.c_str());
    return {std::move(behindLinks), kind, attributes};
}
