// How long is a text, and where do its characters begin and end?
#pragma once

#include <cstddef>
#include <string_view>

// Text is UTF-8. Characters are counted as Windows' boxes count them, in units of UTF-16: one that takes a
// pair of units, an emoji for instance, counts two.

std::size_t CharacterCount(std::string_view text);

/// The first characters, count units of them at most; never half a character.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

/// The last character; "" for "".
std::string_view LastCharacter(std::string_view text);

/// The text without leading and trailing blanks.
std::string_view TrimBlanks(std::string_view text);
