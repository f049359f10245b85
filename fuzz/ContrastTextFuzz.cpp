// Any two colours and names make the texts of the contrast window as the guideline and its formulas say.
#include <array>
#include <cmath>
#include <cstdio>

#include "core/Contrast.h"
#include "fuzz/FuzzInput.h"
#include "pickers/ContrastText.h"

namespace {

/// The guideline's formula, in percent and with more digits.
long double Percent(const Color& color) {
    long double sum = 0;
    for (const auto& [channel, percent] :
         {std::pair{color.red, 21.26L}, {color.green, 71.52L}, {color.blue, 7.22L}}) {
        const long double part = static_cast<long double>(channel) / 255;
        sum += percent * (channel <= 10 ? part / 12.92L : std::pow((part + 0.055L) / 1.055L, 2.4L));
    }
    return sum;
}

long double ExpectedRatio(const Color& one, const Color& other) {
    const long double ratio = (Percent(one) + 5) / (Percent(other) + 5);
    return ratio < 1 ? 1 / ratio : ratio;
}

/// How many hundredths the text says, which has two decimals.
int HundredthsIn(std::string text) {
    const std::size_t point = text.find('.');
    Require(point != std::string::npos && point > 0 && text.size() == point + 3);
    text.erase(point, 1);
    Require(text.find_first_not_of("0123456789") == std::string::npos);
    return std::stoi(text);
}

/// A number that needs no rounding: so many parts of 65,536, and 1 at least.
void TryRatio(int parts) {
    constexpr int whole = 65536;
    const double ratio = 1 + static_cast<double>(parts) / whole;
    const int hundredths = 100 + static_cast<int>(100LL * parts / whole);
    Require(HundredthsIn(RatioText(ratio)) == hundredths);
}

const char* GradeOf(int hundredths) {
    if (hundredths < 300) return "-";
    if (hundredths < 450) return "AA 18 pt";
    return hundredths < 700 ? "AA" : "AAA";
}

std::string ExpectedHex(const Color& color) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "#%02X%02X%02X", color.red, color.green, color.blue);
    return text.data();
}

std::string ExpectedLabel(const std::string& name, const Color& color) {
    const bool isBlank = std::string(name.size(), ' ') == name;
    const bool isNone = isBlank || name == "Type a colour name" || name == "Not JavaScript colour";
    return isNone ? ExpectedHex(color) : name;
}

void TryPair(const LabelledMark& text, const LabelledMark& ground) {
    const double ratio = ContrastRatio(text.color, ground.color);
    Require(ratio == ContrastRatio(ground.color, text.color));
    Require(std::abs(ratio - ExpectedRatio(text.color, ground.color)) < 1e-9L);
    const std::string number = RatioText(ratio);
    const int hundredths = HundredthsIn(number);
    Require(hundredths >= 100 && hundredths <= 2100);
    Require(std::abs(100 * ratio - hundredths - 0.5) < 0.5 + 1e-9);
    // What the number does not reach, the grade does not promise.
    Require(PairText(text, ground) ==
            text.label + " on " + ground.label + ": " + number + ":1, " + GradeOf(hundredths));
}

void TryMark(const LabelledMark& shown, const std::string& name, const Color& color) {
    Require(shown.label == ExpectedLabel(name, color));
    Require(shown.color == color);
    const std::string hex = ExpectedHex(color);
    Require(MarkText(shown) == (shown.label == hex ? hex : shown.label + " " + hex));
}

Palette TakePalette(FuzzInput& input) {
    Palette palette;
    for (Color& color : palette.colors) {
        color.red = input.takeByte();
        color.green = input.takeByte();
        color.blue = input.takeByte();
    }
    for (std::string& name : palette.names) name = input.takeLine();
    return palette;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const int high = input.takeByte();
    const int middle = input.takeByte();
    TryRatio((high * 256 + middle) * 20 + input.takeByte() % 21);
    const Palette palette = TakePalette(input);
    const LabelledMarkSet marks = LabelledMarks(palette);
    for (int mark = 0; mark < markCount; ++mark) {
        TryMark(marks[mark], palette.names[mark], palette.colors[mark]);
        TryPair(marks[mark], marks[(mark + 1) % markCount]);
    }
    return 0;
}
