#include "core/ColorTables.h"

#include <algorithm>
#include <cstddef>

#include "core/ChannelText.h"
#include "core/ColorTablesData.h"

namespace {

constexpr std::size_t hexLength = 6;
constexpr std::size_t nameTail = hexLength + 2;  // the blank, "#" and the digits that follow a name

constexpr int DigitValue(char digit) { return digit <= '9' ? digit - '0' : digit - 'A' + 10; }

constexpr int PairValue(std::string_view hex, std::size_t at) {
    return 16 * DigitValue(hex[at]) + DigitValue(hex[at + 1]);
}

/// text ends in six hexadecimal digits: red, green, blue.
constexpr PackedColor PackedFromHex(std::string_view text) {
    const std::string_view hex = text.substr(text.size() - hexLength);
    return Pack(ColorOf(PairValue(hex, 0), PairValue(hex, 2), PairValue(hex, 4)));
}

constexpr std::string_view NameOf(std::string_view nameHex) {
    return nameHex.substr(0, nameHex.size() - nameTail);
}

/// An entry of the .NET list without a value takes it from the alphabetical list.
consteval std::string_view NameHexOf(std::string_view dotNetEntry) {
    if (dotNetEntry.find('#') != std::string_view::npos) return dotNetEntry;
    return *std::ranges::find(alphabeticalList, dotNetEntry, NameOf);
}

consteval void BuildWebsafe(ColorTables& tables) {
    constexpr int step = 51;
    for (int i = 0; i < 216; ++i) {
        const Color color = ColorOf(i / 36 * step, i / 6 % 6 * step, i % 6 * step);
        tables.websafeChannels[i] = color;
        tables.websafeColor[i] = Pack(color);
    }
}

consteval void BuildJavaScript(ColorTables& tables) {
    tables.jsNameHex = alphabeticalList;
    std::ranges::transform(alphabeticalList, tables.jsName.begin(), NameOf);
    std::ranges::transform(alphabeticalList, tables.jsColor.begin(), PackedFromHex);
    for (std::size_t i = 0; i < dotNetList.size(); ++i) {
        tables.jsDotNetNameHex[i] = NameHexOf(dotNetList[i]);
        tables.jsDotNetColor[i] = PackedFromHex(tables.jsDotNetNameHex[i]);
    }
}

consteval ColorTables BuildColorTables() {
    ColorTables tables{};
    BuildWebsafe(tables);
    tables.failsafeHex = failsafeList;
    std::ranges::transform(failsafeList, tables.failsafeColor.begin(), PackedFromHex);
    BuildJavaScript(tables);
    return tables;
}

bool Contains(const auto& table, const Color& color) {
    return std::ranges::find(table, Pack(color)) != table.end();
}

}  // namespace

constinit const ColorTables colorTables = BuildColorTables();

bool IsWebsafe(const Color& color) { return Contains(colorTables.websafeColor, color); }
bool IsFailsafe(const Color& color) { return Contains(colorTables.failsafeColor, color); }
bool IsJavaScriptColor(const Color& color) { return Contains(colorTables.jsColor, color); }

std::string ColorPropertyLetters(const Color& color) {
    std::string letters;
    if (IsWebsafe(color)) letters += 'W';
    if (IsFailsafe(color)) letters += 'F';
    if (IsJavaScriptColor(color)) letters += 'J';
    return letters;
}

std::string_view JavaScriptName(const Color& color) {
    const auto found = std::ranges::find(colorTables.jsColor, Pack(color));
    if (found == colorTables.jsColor.end()) return "";
    const std::string_view name = colorTables.jsName[found - colorTables.jsColor.begin()];
    if (name == "aqua") return "cyan";
    if (name == "fuchsia") return "magenta";
    return name;
}
