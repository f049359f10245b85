// Where do characters begin and end in a code page where some take two bytes?
#pragma once

#include <cstddef>
#include <string_view>

/// Whether a byte begins a character of two bytes. The second byte of such a character may look like any
/// other character, a backslash for instance.
using LeadByteTest = bool (*)(char byte);

/// The length in bytes of the character at that place, which is before the end of the text.
std::size_t CharacterLength(std::string_view text, std::size_t at, LeadByteTest isLeadByte);

std::size_t CharacterCount(std::string_view text, LeadByteTest isLeadByte);

/// The first characters, at most count of them; never half a character.
std::string_view FirstCharacters(std::string_view text, std::size_t count, LeadByteTest isLeadByte);

/// The last character; "" for "".
std::string_view LastCharacter(std::string_view text, LeadByteTest isLeadByte);

/// The text without leading and trailing blanks.
std::string_view TrimBlanks(std::string_view text);
