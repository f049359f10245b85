// What does the dialog of the options show of each notation?
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <vector>

#include "tests/driver/OptionsDialog.h"
#include "tests/driver/UiTest.h"

namespace {

class OptionsExample : public UiTest {};

struct Row {
    const wchar_t* name;
    const char* example;  ///< the label's own text, in which an ampersand is two
};

constexpr std::array<Row, 12> rows = {{
    {L"HTML Hex", "FFCC00"},
    {L"Lower Case HTML Hex", "ffcc00"},
    {L"VB Hex", "&&H0000CCFF&&"},
    {L"VB", "RGB(255, 204, 0)"},
    {L"C++ Hex", "0x0000ccff"},
    {L"Delphi Hex", "$0000CCFF"},
    {L"Access", "52479"},
    {L".NET HTML", "ColorTranslator.FromHtml(\"#FFCC00\")"},
    {L".NET OLE", "ColorTranslator.FromOle(52479)"},
    {L".NET Win32", "ColorTranslator.FromWin32(52479)"},
    {L"Java", "Color(255,204,0)"},
    {L"Custom", "<ff>"},
}};

std::wstring RowName(const OptionsDialog& options, int row) {
    std::array<wchar_t, 64> name{};
    ::SendMessageW(options.control(IDC_lstStandardFormat), LB_GETTEXT, row,
                   reinterpret_cast<LPARAM>(name.data()));
    return name.data();
}

/// How far the text in a control reaches, in pixels; 0 when there is none.
int InkWidth(HWND control) {
    constexpr int width = 200;
    constexpr int height = 16;
    const POINT corner = OnScreen(control, {0, 0});
    const std::vector<Color> pixels = PixelsOf({corner.x, corner.y, corner.x + width, corner.y + height});
    int reach = 0;
    for (int at = 0; at < width * height; ++at) {
        if (pixels[at] != pixels.back()) reach = std::max(reach, at % width + 1);
    }
    return reach;
}

int WidthOf(std::string_view text) {
    const HDC screen = ::GetDC(nullptr);
    const HFONT font =
        ::CreateFontA(-::MulDiv(9, ::GetDeviceCaps(screen, LOGPIXELSY), 72), 0, 0, 0, FW_NORMAL, 0, 0, 0,
                      DEFAULT_CHARSET, 0, 0, CLEARTYPE_QUALITY, 0, "Segoe UI");
    const HGDIOBJ before = ::SelectObject(screen, font);
    SIZE size{};
    ::GetTextExtentPoint32A(screen, text.data(), static_cast<int>(text.size()), &size);
    ::SelectObject(screen, before);
    ::DeleteObject(font);
    ::ReleaseDC(nullptr, screen);
    return size.cx;
}

/// Exactly that text is to be seen: less than half an ampersand is missing or too much.
void ExpectSeen(HWND control, std::string_view text) {
    const int expected = WidthOf(text);
    const int tolerance = WidthOf("&") / 2;
    ASSERT_GT(tolerance, 2);
    int seen = 0;
    EXPECT_TRUE(Eventually([&] {
        seen = InkWidth(control);
        return std::abs(seen - expected) < tolerance;
    })) << text
        << ": " << seen << " pixels, expected " << expected;
}

}  // namespace

TEST_F(OptionsExample, FollowsTheListFromTheFirstToTheLastNotation) {
    StoreText("CustomFormat", "<%LR%>");
    const Huevox huevox;
    const OptionsDialog options(huevox);
    const HWND list = options.control(IDC_lstStandardFormat);
    ASSERT_EQ(::SendMessageA(list, LB_GETCOUNT, 0, 0), 12);
    for (int row = 11; row >= 0; --row) {
        EXPECT_EQ(RowName(options, row), rows[row].name);
        options.choose(row);
        EXPECT_BECOMES(options.example(), rows[row].example);
    }
    Press(VK_DOWN);
    EXPECT_BECOMES(options.example(), rows[1].example);
    Press(VK_END);
    EXPECT_BECOMES(options.example(), rows[11].example);
}

TEST_F(OptionsExample, OfAnEmptyTemplateIsEmpty) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.choose(11);
    EXPECT_BECOMES(options.example(), "");
}

TEST_F(OptionsExample, FillsInTheTemplateThatIsInForce) {
    StoreText("CustomFormat", "%UR%%UG%%UB% %LR%%LG%%LB% %DR%.%DG%.%DB% %LD%%LD%");
    StoreText("FormatIndex", "11");
    const Huevox huevox;
    const OptionsDialog options(huevox);
    EXPECT_BECOMES(options.example(), "FFCC00 ffcc00 255.204.0 5247952479");
}

TEST_F(OptionsExample, OfVbHexIsSeenWithSingleAmpersands) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.choose(2);
    ExpectSeen(options.control(IDC_lblExample), "&H0000CCFF&");
}

TEST_F(OptionsExample, OfATemplateWithAmpersandsIsSeenAsItIs) {
    StoreText("CustomFormat", "a && b & %UR%");
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.choose(11);
    EXPECT_BECOMES(options.example(), "a &&&& b && FF");
    ExpectSeen(options.control(IDC_lblExample), "a && b & FF");
}

TEST_F(OptionsExample, AFolderWithAnAmpersandIsSeenAndStoredAsItIs) {
    const char* folder = "C:\\a&b & c";
    ::CreateDirectoryA(folder, nullptr);
    StoreText("StandardFolder", folder);
    {
        const Huevox huevox;
        const OptionsDialog options(huevox);
        EXPECT_EQ(options.folder(), folder);
        ExpectSeen(options.control(IDC_lblSelectedStandardFolder), folder);
        StoreText("StandardFolder", "other");
        options.close(IDC_cmdOK);
        EXPECT_EQ(StoredText("StandardFolder"), folder);
    }
    ::RemoveDirectoryA(folder);
}
