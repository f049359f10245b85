#include "settings/Folders.h"

#include <shlobj.h>

#include <array>
#include <cctype>
#include <cstddef>
#include <memory>

#include "core/Characters.h"
#include "core/PathText.h"
#include "toolkit/platform/ComInUse.h"
#include "toolkit/platform/ShellFunction.h"
#include "toolkit/platform/Text.h"

namespace {

constexpr std::size_t rootLength = 3;  // of a drive root such as C:\ with its backslash

struct FreeItem {
    void operator()(ITEMIDLIST* item) const { ComFunction<decltype(::CoTaskMemFree)>("CoTaskMemFree")(item); }
};
using OwnedItem = std::unique_ptr<ITEMIDLIST, FreeItem>;

std::string PathOf(const OwnedItem& item) {
    std::array<wchar_t, MAX_PATH> path{};
    const auto pathOf = ShellFunction<decltype(::SHGetPathFromIDListW)>("SHGetPathFromIDListW");
    const bool isPath = item && pathOf(item.get(), path.data()) != FALSE;
    return isPath ? Utf8(path.data()) : "";
}

std::string WithoutLastBackslash(std::string path) {
    if (!path.empty() && GetFileNamePart(path, "\\").empty()) path.pop_back();
    return path;
}

bool IsFolderOnDisk(const std::string& path) {
    const std::string_view name = GetFileNamePart(path, "\\");
    const std::wstring wide = Wide(path);
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(wide.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return false;
    ::FindClose(search);
    const DWORD attributes = ::GetFileAttributesW(wide.c_str());
    return name == Utf8(found.cFileName) && attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// Windows would give a relative path such as ".." the type of the current drive.
bool IsDrive(const std::string& text) {
    return text.size() == 2 && std::isalpha(static_cast<unsigned char>(text[0])) != 0 && text[1] == ':';
}

bool IsUsableDrive(const std::string& drive) {
    if (!IsDrive(drive)) return false;
    const UINT type = ::GetDriveTypeW(Wide(drive + '\\').c_str());
    return type >= DRIVE_REMOVABLE && type <= DRIVE_RAMDISK;
}

}  // namespace

bool GetDesktopFolder(std::string& desktopFolder) {
    LPITEMIDLIST found = nullptr;
    const auto locationOf =
        ShellFunction<decltype(::SHGetSpecialFolderLocation)>("SHGetSpecialFolderLocation");
    locationOf(nullptr, CSIDL_DESKTOPDIRECTORY, &found);
    desktopFolder = PathOf(OwnedItem(found));
    return !desktopFolder.empty();
}

bool IsValidFolder(std::string_view path) {
    const std::string folder = WithoutLastBackslash(std::string(path));
    return CharacterCount(path) > rootLength ? IsFolderOnDisk(folder) : IsUsableDrive(folder);
}

std::string BrowseForFolder(HWND owner) {
    const ComInUse com;
    std::array<wchar_t, MAX_PATH> displayName{};
    BROWSEINFOW browse{};
    browse.hwndOwner = owner;
    browse.pszDisplayName = displayName.data();
    browse.lpszTitle = L"C:\\";
    browse.ulFlags = BIF_RETURNONLYFSDIRS;
    const auto choose = ShellFunction<decltype(::SHBrowseForFolderW)>("SHBrowseForFolderW");
    const std::string path = PathOf(OwnedItem(choose(&browse)));
    return CharacterCount(path) > rootLength ? WithoutLastBackslash(path) : path;
}
