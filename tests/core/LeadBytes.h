// Which bytes begin a character of two bytes, for a test?
#pragma once

inline bool NoLeadByte(char) { return false; }
inline bool IsLeadByte83(char byte) { return byte == '\x83'; }
