// Which bytes begin a character of two in the system's code page?
#pragma once

#include "toolkit/platform/Platform.h"

inline bool IsLeadByte(char byte) { return ::IsDBCSLeadByte(static_cast<BYTE>(byte)) != FALSE; }
