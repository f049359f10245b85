#include "core/ColorCode.h"

#include <algorithm>
#include <cstddef>

#include "core/ChannelText.h"

namespace {

std::string Joined(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces) text += piece;
    return text;
}

std::string_view Red(const Color& color) { return HexPairs[color.red]; }
std::string_view Green(const Color& color) { return HexPairs[color.green]; }
std::string_view Blue(const Color& color) { return HexPairs[color.blue]; }

std::string Long(const Color& color) { return std::to_string(Pack(color)); }

/// Blue, green, red: the byte order of a Windows colour reference.
std::string ReferenceHex(const Color& color) { return Joined({Blue(color), Green(color), Red(color)}); }

std::string Decimals(const Color& color, std::string_view separator) {
    return Joined({std::to_string(color.red), separator, std::to_string(color.green), separator,
                   std::to_string(color.blue)});
}

std::string HtmlHex(const Color& color) { return Joined({"#", Red(color), Green(color), Blue(color)}); }
std::string LowerCaseHtmlHex(const Color& color) { return LowerCased(HtmlHex(color)); }
std::string VbHex(const Color& color) { return Joined({"&H00", ReferenceHex(color), "&"}); }
std::string Vb(const Color& color) { return Joined({"RGB(", Decimals(color, ", "), ")"}); }
std::string CppHex(const Color& color) { return LowerCased(Joined({"0x00", ReferenceHex(color)})); }
std::string DelphiHex(const Color& color) { return Joined({"$00", ReferenceHex(color)}); }
std::string DotNetHtml(const Color& color) {
    return Joined({"ColorTranslator.FromHtml(\"", HtmlHex(color), "\")"});
}
std::string DotNetOle(const Color& color) { return Joined({"ColorTranslator.FromOle(", Long(color), ")"}); }
std::string DotNetWin32(const Color& color) {
    return Joined({"ColorTranslator.FromWin32(", Long(color), ")"});
}
std::string Java(const Color& color) { return Joined({"Color(", Decimals(color, ","), ")"}); }

void ReplaceEvery(std::string& text, std::string_view placeholder, std::string_view replacement) {
    std::size_t at = text.find(placeholder);
    while (at != std::string::npos) {
        text.replace(at, placeholder.size(), replacement);
        at = text.find(placeholder, at + replacement.size());
    }
}

}  // namespace

constinit const std::array<Notation, notationCount> notations = {{
    {"HTML Hex", HtmlHex},
    {"Lower Case HTML Hex", LowerCaseHtmlHex},
    {"VB Hex", VbHex},
    {"VB", Vb},
    {"C++ Hex", CppHex},
    {"Delphi Hex", DelphiHex},
    {"Access", Long},
    {".NET HTML", DotNetHtml},
    {".NET OLE", DotNetOle},
    {".NET Win32", DotNetWin32},
    {"Java", Java},
    {"Custom", nullptr},
}};

std::optional<std::string> ColorCode(int formatIndex, const Color& color, std::string_view customFormat) {
    if (formatIndex < 0 || formatIndex >= notationCount) return std::nullopt;
    if (formatIndex == customNotation) return ExpandCustomFormat(customFormat, color);
    return notations[formatIndex].render(color);
}

std::string ExpandCustomFormat(std::string_view customFormat, const Color& color) {
    std::string text(customFormat);
    ReplaceEvery(text, "%UR%", Red(color));
    ReplaceEvery(text, "%UG%", Green(color));
    ReplaceEvery(text, "%UB%", Blue(color));
    ReplaceEvery(text, "%LR%", LowerCased(Red(color)));
    ReplaceEvery(text, "%LG%", LowerCased(Green(color)));
    ReplaceEvery(text, "%LB%", LowerCased(Blue(color)));
    ReplaceEvery(text, "%DR%", std::to_string(color.red));
    ReplaceEvery(text, "%DG%", std::to_string(color.green));
    ReplaceEvery(text, "%DB%", std::to_string(color.blue));
    ReplaceEvery(text, "%LD%", Long(color));
    return text;
}
