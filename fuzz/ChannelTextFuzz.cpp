// Any text may be typed for a channel: it is a number from 0 to 255, or it is refused.
#include <array>
#include <cstdio>
#include <optional>

#include "core/ChannelText.h"
#include "fuzz/FuzzInput.h"

namespace {

constexpr int refused = -1;

std::string WithoutOuterBlanks(std::string text) {
    while (!text.empty() && text.front() == ' ') text.erase(0, 1);
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

int ExpectedDecimal(const std::string& text) {
    const std::string digits = WithoutOuterBlanks(text);
    if (digits.empty()) return refused;
    int number = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') return refused;
        number = std::min(10 * number + (digit - '0'), 256);
    }
    return number > 255 ? refused : number;
}

std::optional<int> DigitOf(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return std::nullopt;
}

int ExpectedHex(const std::string& text) {
    const std::string pair = WithoutOuterBlanks(text);
    if (pair.size() != 2) return refused;
    const std::optional first = DigitOf(pair[0]);
    const std::optional second = DigitOf(pair[1]);
    return first && second ? 16 * *first + *second : refused;
}

std::string Formatted(const char* format, int number) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), format, number);
    return text.data();
}

void TryStripping(std::string_view text) {
    const std::string_view stripped = StripLeadingZeros(text);
    Require(text.ends_with(stripped));
    Require(stripped.empty() == text.empty());
    Require(stripped.size() < 2 || stripped.front() != '0');
    for (const char dropped : text.substr(0, text.size() - stripped.size())) Require(dropped == '0');
}

void TryLowerCase(std::string_view text) {
    const std::string lower = LowerCased(text);
    Require(lower.size() == text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isCapital = text[at] >= 'A' && text[at] <= 'Z';
        Require(lower[at] == (isCapital ? text[at] + 32 : text[at]));
    }
}

void TryEveryWayToWrite(int channel, int blanks) {
    const std::string around(blanks, ' ');
    Require(ParseChannelDecimal(around + Formatted("%d", channel) + around) == channel);
    Require(ParseChannelDecimal(around + Formatted("%012d", channel)) == channel);
    Require(ParseChannelHex(around + Formatted("%02X", channel)) == channel);
    Require(ParseChannelHex(Formatted("%02x", channel) + around) == channel);
    Require(HexPairs[channel] == Formatted("%02X", channel));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const int channel = input.takeByte();
    TryEveryWayToWrite(channel, channel % 5);
    const std::string text(input.takeRest());
    Require(ParseChannelDecimal(text) == ExpectedDecimal(text));
    const int hex = ExpectedHex(text);
    Require(ParseChannelHex(text) == hex);
    Require(ValidateHexPair(text) == (hex == refused ? "-1" : Formatted("%02X", hex)));
    TryStripping(text);
    TryLowerCase(text);
    return 0;
}
