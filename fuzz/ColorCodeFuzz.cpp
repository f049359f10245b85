// Any template may be in the settings: its placeholders are replaced one after another, and nothing else is.
#include <array>
#include <cstdio>
#include <optional>
#include <utility>

#include "core/ColorCode.h"
#include "fuzz/FuzzInput.h"

namespace {

constexpr int customIndex = 11;
constexpr std::size_t placeholderLength = 4;
constexpr std::size_t longestReplacement = 8;  // of the packed colour

template <class... Numbers>
std::string Formatted(const char* format, Numbers... numbers) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, numbers...);
    return text.data();
}

/// Copies the text character by character, and the replacement wherever the placeholder stands.
std::string Replaced(const std::string& text, const std::string& placeholder,
                     const std::string& replacement) {
    std::string result;
    std::size_t at = 0;
    while (at < text.size()) {
        const bool isPlaceholder = std::string_view(text).substr(at).starts_with(placeholder);
        if (isPlaceholder) result += replacement;
        if (!isPlaceholder) result += text[at];
        at += isPlaceholder ? placeholder.size() : 1;
    }
    return result;
}

std::string ExpectedExpansion(std::string text, int red, int green, int blue) {
    const std::array<std::pair<std::string, std::string>, 10> passes = {
        {{"%UR%", Formatted("%02X", red)},
         {"%UG%", Formatted("%02X", green)},
         {"%UB%", Formatted("%02X", blue)},
         {"%LR%", Formatted("%02x", red)},
         {"%LG%", Formatted("%02x", green)},
         {"%LB%", Formatted("%02x", blue)},
         {"%DR%", Formatted("%d", red)},
         {"%DG%", Formatted("%d", green)},
         {"%DB%", Formatted("%d", blue)},
         {"%LD%", Formatted("%d", red + 256 * green + 65536 * blue)}}};
    for (const auto& [placeholder, replacement] : passes) text = Replaced(text, placeholder, replacement);
    return text;
}

/// In any notation but the last.
std::string ExpectedCode(int index, int red, int green, int blue) {
    const int packed = red + 256 * green + 65536 * blue;
    switch (index) {
        case 0: return Formatted("#%02X%02X%02X", red, green, blue);
        case 1: return Formatted("#%02x%02x%02x", red, green, blue);
        case 2: return Formatted("&H00%02X%02X%02X&", blue, green, red);
        case 3: return Formatted("RGB(%d, %d, %d)", red, green, blue);
        case 4: return Formatted("0x00%02x%02x%02x", blue, green, red);
        case 5: return Formatted("$00%02X%02X%02X", blue, green, red);
        case 6: return Formatted("%d", packed);
        case 7: return Formatted("ColorTranslator.FromHtml(\"#%02X%02X%02X\")", red, green, blue);
        case 8: return Formatted("ColorTranslator.FromOle(%d)", packed);
        case 9: return Formatted("ColorTranslator.FromWin32(%d)", packed);
        default: return Formatted("Color(%d,%d,%d)", red, green, blue);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const int red = input.takeByte();
    const int green = input.takeByte();
    const int blue = input.takeByte();
    const int index = input.takeByte() % 16 - 2;
    const std::string customFormat(input.takeRest());
    const Color color = ColorOf(red, green, blue);

    const std::string expanded = ExpandCustomFormat(customFormat, color);
    Require(expanded == ExpectedExpansion(customFormat, red, green, blue));
    Require(expanded.size() <= customFormat.size() / placeholderLength * longestReplacement +
                                   customFormat.size() % placeholderLength);
    Require(ColorCode(customIndex, color, customFormat) == expanded);

    const std::optional<std::string> code = ColorCode(index, color, customFormat);
    Require(code.has_value() == (index >= 0 && index <= customIndex));
    if (code && index != customIndex) Require(*code == ExpectedCode(index, red, green, blue));
    return 0;
}
