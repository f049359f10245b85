// What of a file stays as it was when another takes its place?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"

/// The attributes of a new file that is to stand for one with these.
DWORD KeptAttributes(DWORD attributes);

/// Gives the file the creation time, the alternate streams and the access rights of another. False when
/// something of that is refused.
bool HasTakenOver(const std::wstring& file, const std::wstring& from);
