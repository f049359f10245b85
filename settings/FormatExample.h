// What does a notation look like?
#pragma once

#include <string>
#include <string_view>

/// The sample colour (255, 204, 0) in the notation of that format index; "" for an index that none has.
/// customFormat is the template of "Custom".
std::string FormatExample(int index, std::string_view customFormat);

/// The text for a label that takes one ampersand for the mark of an access key, and two for an ampersand.
std::string DoubledAmpersands(std::string_view text);
