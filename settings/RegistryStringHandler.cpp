#include "settings/RegistryStringHandler.h"

#include <algorithm>
#include <cstddef>

#include "toolkit/platform/Handles.h"

namespace {

using OwnedKey = Owned<HKEY, &::RegCloseKey>;

OwnedKey OpenKey(HKEY hive, const std::string& path) {
    HKEY key = nullptr;
    ::RegOpenKeyExA(hive, path.c_str(), 0, KEY_ALL_ACCESS, &key);
    return OwnedKey(key);
}

OwnedKey CreateKey(HKEY hive, const std::string& path) {
    std::string keyClass = "REG_DWORD";  // the class that the key has always had, whatever its values are
    HKEY key = nullptr;
    ::RegCreateKeyExA(hive, path.c_str(), 0, keyClass.data(), REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                      nullptr, &key, nullptr);
    return OwnedKey(key);
}

}  // namespace

std::string RegistryStringHandler::ReadString(HKEY MyHive, std::string_view strMyKey,
                                              std::string_view strMyValueName) const {
    const OwnedKey key = OpenKey(MyHive, TrimKeySlashes(strMyKey));
    const std::string name(strMyValueName);
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (!key ||
        ::RegQueryValueExA(key.get(), name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        type != REG_SZ) {
        return "";
    }
    std::string text(static_cast<std::size_t>(size) + 1, ' ');
    auto* bytes = reinterpret_cast<BYTE*>(text.data());
    if (::RegQueryValueExA(key.get(), name.c_str(), nullptr, &type, bytes, &size) != ERROR_SUCCESS) return "";
    // A stored text need not end in a NUL: it is no longer than the size that Windows has returned.
    text.resize(std::min<std::size_t>(size, text.find('\0')));
    return text;
}

bool RegistryStringHandler::WriteString(HKEY MyHive, std::string_view strMyKey,
                                        std::string_view strMyValueName, std::string_view strMyData) const {
    const std::string path = TrimKeySlashes(strMyKey);
    OwnedKey key = OpenKey(MyHive, path);
    if (!key) key = CreateKey(MyHive, path);
    if (!key) return false;
    const std::string name(strMyValueName);
    const auto* bytes = reinterpret_cast<const BYTE*>(strMyData.data());
    // The length leaves the closing NUL out, as it always has.
    const auto length = static_cast<DWORD>(strMyData.size());
    return ::RegSetValueExA(key.get(), name.c_str(), 0, REG_SZ, bytes, length) == ERROR_SUCCESS;
}

bool RegistryStringHandler::DeleteValue(HKEY MyHive, std::string_view strMyKey,
                                        std::string_view strMyValueName) const {
    const OwnedKey key = OpenKey(MyHive, TrimKeySlashes(strMyKey));
    const std::string name(strMyValueName);
    return key && ::RegDeleteValueA(key.get(), name.c_str()) == ERROR_SUCCESS;
}

bool RegistryStringHandler::DeleteKey(HKEY MyHive, std::string_view strMyKey) const {
    const OwnedKey key = OpenKey(MyHive, TrimKeySlashes(strMyKey));
    return key && ::RegDeleteKeyA(key.get(), "") == ERROR_SUCCESS;
}

std::string RegistryStringHandler::TrimKeySlashes(std::string_view path) {
    const std::size_t first = path.find_first_not_of('\\');
    if (first == std::string_view::npos) return "";
    return std::string(path.substr(first, path.find_last_not_of('\\') - first + 1));
}
