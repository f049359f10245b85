// How does text get from one encoding into another?
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Text of the program, UTF-8, as the wide functions of Windows take it. What is not UTF-8 becomes U+FFFD.
std::wstring Wide(std::string_view text);

/// Text of Windows, UTF-16, as the program holds it. Half a pair becomes U+FFFD.
std::string Utf8(std::wstring_view text);

/// The text in the system's ANSI code page, in which palette files are written. A character that the code
/// page does not hold becomes "?", never a similar one.
std::string Ansi(std::string_view text);

/// Bytes of the system's ANSI code page as text of the program.
std::string FromAnsi(std::string_view bytes);

/// One character of a text: where it begins, and how many of the text's units it takes, one or two.
struct CharacterPlace {
    std::size_t start;
    std::size_t length;
};

/// The characters that the system's ANSI code page does not hold, in the order of the text. Half a pair is
/// one.
std::vector<CharacterPlace> OutsideAnsi(std::wstring_view text);

/// The text with "?" for each character that the system's ANSI code page does not hold.
std::wstring WithinAnsi(std::wstring_view text);
