#include "core/ChannelText.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "core/Characters.h"

namespace {

constexpr std::string_view decimalDigits = "0123456789";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

constexpr std::size_t pairCount = 256;
constexpr std::size_t joinedLength = 512;

consteval std::array<char, joinedLength> JoinHexPairs() {
    std::array<char, joinedLength> text{};
    for (std::size_t i = 0; i < pairCount; ++i) {
        text[2 * i] = hexDigits[i / 16];
        text[2 * i + 1] = hexDigits[i % 16];
    }
    return text;
}

constexpr std::array<char, joinedLength> joinedHexPairs = JoinHexPairs();

consteval std::array<std::string_view, pairCount> BuildHexPairs() {
    std::array<std::string_view, pairCount> pairs;
    for (std::size_t i = 0; i < pairCount; ++i) pairs[i] = std::string_view(&joinedHexPairs[2 * i], 2);
    return pairs;
}

std::string UpperCased(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return result;
}

/// Reads text, which holds nothing but digits of the base. -1 when it does not fit 16 bits.
std::int16_t ToNumber(std::string_view text, int base) {
    std::int16_t number = -1;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return result.ec == std::errc{} ? number : std::int16_t{-1};
}

}  // namespace

constinit const std::array<std::string_view, 256> HexPairs = BuildHexPairs();

std::string HexText(const Color& color) {
    std::string text = "#";
    for (const int channel : {color.red, color.green, color.blue}) text += HexPairs[channel];
    return text;
}

std::string LowerCased(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return result;
}

std::string_view StripLeadingZeros(std::string_view text) {
    while (text.size() >= 2 && text.front() == '0') text.remove_prefix(1);
    return text;
}

std::int16_t ParseChannelDecimal(std::string_view text) {
    const std::string_view digits = StripLeadingZeros(TrimBlanks(text));
    if (digits.empty() || digits.find_first_not_of(decimalDigits) != std::string_view::npos) return -1;
    const std::int16_t number = ToNumber(digits, 10);
    return number <= 255 ? number : std::int16_t{-1};
}

std::string ValidateHexPair(std::string_view text) {
    std::string pair = UpperCased(TrimBlanks(text));
    if (pair.size() != 2 || pair.find_first_not_of(hexDigits) != std::string::npos) return "-1";
    return pair;
}

std::int16_t ParseChannelHex(std::string_view text) {
    const std::string pair = ValidateHexPair(text);
    return pair == "-1" ? std::int16_t{-1} : ToNumber(pair, 16);
}
