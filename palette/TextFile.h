// How do texts get from and to the disk?
#pragma once

#include <string>
#include <string_view>

#include "toolkit/Handles.h"

using OwnedFile = Owned<HANDLE, &::CloseHandle>;

/// Opens an existing file, which others may read and write meanwhile. Throws std::runtime_error.
OwnedFile OpenForReading(const std::string& path);

/// The file's bytes, at most 64 MB of them: nothing that a palette needs comes later. Throws
/// std::runtime_error.
std::string ReadText(const OwnedFile& file);

/// Puts the text in the place of the file, or makes the file, in one step. Throws std::runtime_error; then
/// what was there before is there still, whole.
void ReplaceText(const std::string& path, std::string_view text);
