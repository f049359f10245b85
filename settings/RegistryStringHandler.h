// How are texts kept in the registry?
#pragma once

#include <string>
#include <string_view>

#include "toolkit/platform/Platform.h"

/// Reads and writes text values of the registry. Key paths may begin and end with backslashes.
class RegistryStringHandler {
public:
    /// The value's text up to its first NUL; "" when the key cannot be opened, the value is missing or is no
    /// text.
    std::string ReadString(HKEY MyHive, std::string_view strMyKey, std::string_view strMyValueName) const;

    /// Creates the key when it is missing. True when the value was written.
    bool WriteString(HKEY MyHive, std::string_view strMyKey, std::string_view strMyValueName,
                     std::string_view strMyData) const;

    /// True when the value was removed.
    bool DeleteValue(HKEY MyHive, std::string_view strMyKey, std::string_view strMyValueName) const;

    /// Removes a key without sub-keys. True when it was removed.
    bool DeleteKey(HKEY MyHive, std::string_view strMyKey) const;

private:
    static std::string TrimKeySlashes(std::string_view path);
};
