// How is text read from disk and written to it?
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "palette/OpenedFile.h"

/// Opens an existing file, which others may read and write meanwhile. Throws std::runtime_error.
OwnedFile OpenForReading(const std::string& path);

/// Hands the file's bytes on, block by block, until take returns false. Throws std::runtime_error.
void ReadBlocks(const OwnedFile& file, const std::function<bool(std::string_view block)>& take);

/// Replaces the text of the file, or creates it; all else of the file stays as it is. Throws
/// std::runtime_error; what was there before is then still there, whole.
void ReplaceTextFile(const std::string& path, std::string_view text);
