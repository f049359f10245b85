#include "settings/FormatExample.h"

#include "core/ColorCode.h"

std::string FormatExample(int index, std::string_view customFormat) {
    std::string example = ColorCode(index, ColorOf(255, 204, 0), customFormat).value_or("");
    // Both HTML notations are shown without their "#"; a template is shown as it is.
    if (index != customNotation && example.starts_with('#')) example.erase(0, 1);
    return example;
}

std::string DoubledAmpersands(std::string_view text) {
    std::string doubled;
    for (const char character : text) doubled.append(character == '&' ? 2 : 1, character);
    return doubled;
}
