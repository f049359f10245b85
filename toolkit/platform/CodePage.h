// What does the code page that texts are in say of their bytes?
#pragma once

#include "toolkit/platform/Platform.h"

inline bool IsLeadByte(char byte) { return ::IsDBCSLeadByte(static_cast<BYTE>(byte)) != FALSE; }
