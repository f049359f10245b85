#include "settings/RegistryStringHandler.h"

#include <algorithm>
#include <cstddef>

#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Text.h"

namespace {

using OwnedKey = Owned<HKEY, &::RegCloseKey>;

OwnedKey OpenKey(HKEY hive, const std::wstring& path) {
    HKEY key = nullptr;
    ::RegOpenKeyExW(hive, path.c_str(), 0, KEY_ALL_ACCESS, &key);
    return OwnedKey(key);
}

OwnedKey CreateKey(HKEY hive, const std::wstring& path) {
    std::wstring keyClass = L"REG_DWORD";  // the class that the key has always had, whatever its values are
    HKEY key = nullptr;
    ::RegCreateKeyExW(hive, path.c_str(), 0, keyClass.data(), REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                      nullptr, &key, nullptr);
    return OwnedKey(key);
}

}  // namespace

std::string RegistryStringHandler::ReadString(HKEY MyHive, std::string_view strMyKey,
                                              std::string_view strMyValueName) const {
    const OwnedKey key = OpenKey(MyHive, Wide(TrimKeySlashes(strMyKey)));
    const std::wstring name = Wide(strMyValueName);
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (!key ||
        ::RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        type != REG_SZ) {
        return "";
    }
    std::wstring text(size / sizeof(wchar_t) + 1, L' ');
    auto* bytes = reinterpret_cast<BYTE*>(text.data());
    if (::RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, bytes, &size) != ERROR_SUCCESS) return "";
    // A stored text need not end in a NUL: it is no longer than the size that Windows has returned.
    text.resize(std::min<std::size_t>(size / sizeof(wchar_t), text.find(L'\0')));
    return Utf8(text);
}

bool RegistryStringHandler::WriteString(HKEY MyHive, std::string_view strMyKey,
                                        std::string_view strMyValueName, std::string_view strMyData) const {
    const std::wstring path = Wide(TrimKeySlashes(strMyKey));
    OwnedKey key = OpenKey(MyHive, path);
    if (!key) key = CreateKey(MyHive, path);
    if (!key) return false;
    const std::wstring name = Wide(strMyValueName);
    const std::wstring text = Wide(strMyData);
    const auto* bytes = reinterpret_cast<const BYTE*>(text.data());
    // The length leaves the closing NUL out, as it always has.
    const auto length = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    return ::RegSetValueExW(key.get(), name.c_str(), 0, REG_SZ, bytes, length) == ERROR_SUCCESS;
}

bool RegistryStringHandler::DeleteValue(HKEY MyHive, std::string_view strMyKey,
                                        std::string_view strMyValueName) const {
    const OwnedKey key = OpenKey(MyHive, Wide(TrimKeySlashes(strMyKey)));
    const std::wstring name = Wide(strMyValueName);
    return key && ::RegDeleteValueW(key.get(), name.c_str()) == ERROR_SUCCESS;
}

bool RegistryStringHandler::DeleteKey(HKEY MyHive, std::string_view strMyKey) const {
    const OwnedKey key = OpenKey(MyHive, Wide(TrimKeySlashes(strMyKey)));
    return key && ::RegDeleteKeyW(key.get(), L"") == ERROR_SUCCESS;
}

std::string RegistryStringHandler::TrimKeySlashes(std::string_view path) {
    const std::size_t first = path.find_first_not_of('\\');
    if (first == std::string_view::npos) return "";
    return std::string(path.substr(first, path.find_last_not_of('\\') - first + 1));
}
