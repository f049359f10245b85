// What do boxes and files make of a text where the code page is that of Western Europe?
#pragma once

#include <string>
#include <string_view>

/// As a box shows it that such a file can hold: any other character is a question mark.
std::string ShownInBox(std::string_view text);

/// The bytes in a file. text consists of what a box shows.
std::string BytesInFile(std::string_view text);
