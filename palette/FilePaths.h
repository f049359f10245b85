// What are the full paths and the temporary names that saving needs?
#pragma once

#include <string>
#include <string_view>

/// A full path in the form whose length has no limit of 260 characters.
std::wstring WithoutLimit(std::wstring_view fullPath);

/// A full path up to and including its last backslash.
std::wstring_view FolderOf(std::wstring_view fullPath);

/// The name that the program of that number gives a temporary file; each attempt has its own.
std::wstring TemporaryName(unsigned long program, int attempt);
