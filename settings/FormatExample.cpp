#include "settings/FormatExample.h"

#include <array>

#include "core/ColorCode.h"

namespace {

constexpr int customIndex = 11;

/// Fixed texts: the two of HTML do without the sign that the notation begins with.
constexpr std::array<std::string_view, customIndex> examples = {"FFCC00",
                                                                "ffcc00",
                                                                "&H0000CCFF&",
                                                                "RGB(255, 204, 0)",
                                                                "0x0000ccff",
                                                                "$0000CCFF",
                                                                "52479",
                                                                "ColorTranslator.FromHtml(\"#FFCC00\")",
                                                                "ColorTranslator.FromOle(52479)",
                                                                "ColorTranslator.FromWin32(52479)",
                                                                "Color(255,204,0)"};

}  // namespace

std::string FormatExample(int index, std::string_view customFormat) {
    if (index == customIndex) return ExpandCustomFormat(customFormat, ColorOf(255, 204, 0));
    if (index < 0 || index > customIndex) return "";
    return std::string(examples[index]);
}

std::string DoubledAmpersands(std::string_view text) {
    std::string doubled;
    for (const char character : text) doubled.append(character == '&' ? 2 : 1, character);
    return doubled;
}
