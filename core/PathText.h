// How is a path taken apart as text?
#pragma once

#include <string>
#include <string_view>

/// The text after the last delimiter; the whole text when the delimiter is empty or does not occur.
std::string_view GetFileNamePart(std::string_view text, std::string_view delimiter);

/// The text up to and including its last backslash; "" when there is none.
std::string_view FolderPart(std::string_view path);

/// The path, with ".txt" appended unless there is a dot after its last backslash.
std::string WithExtension(std::string_view path);
