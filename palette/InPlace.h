// How is text written into a file that must stay where it is?
#pragma once

#include <string>
#include <string_view>

/// Writes the text over what the file holds, and makes a file that a link leads to. Throws
/// std::runtime_error; the file then holds again what it held.
void WriteInPlace(const std::wstring& path, std::string_view text);
