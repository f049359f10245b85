// What does a notation look like?
#pragma once

#include <string>
#include <string_view>

/// The sample colour (255, 204, 0) in the notation of that format index; "" when none has it.
/// customFormat is the template of "Custom".
std::string FormatExample(int index, std::string_view customFormat);

/// The text for a label, where one ampersand marks an access key and two show an ampersand.
std::string DoubledAmpersands(std::string_view text);
