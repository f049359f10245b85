#include "toolkit/forms/DialogTemplate.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string_view>
#include <vector>

namespace {

/// Writes a template as the resource compiler does.
class TemplateBytes {
public:
    TemplateBytes& word(int value) { return append(static_cast<std::uint16_t>(value)); }
    TemplateBytes& dword(std::uint32_t value) { return append(value); }
    TemplateBytes& text(std::u16string_view value) {
        for (const char16_t unit : value) append(unit);
        return word(0);
    }
    TemplateBytes& ordinal(int value) { return word(0xFFFF).word(value); }
    TemplateBytes& align() {
        while (bytes.size() % 4 != 0) bytes.push_back({});
        return *this;
    }

    TemplateBytes& header(std::uint32_t style, int items) {
        word(1).word(0xFFFF).dword(0).dword(0x10000).dword(style).word(items);
        return word(5).word(6).word(758).word(503).text(u"mnuTest").text(u"frmTest").text(u"Caption");
    }
    TemplateBytes& item(std::uint32_t id, int x, int y, int width, int height) {
        align().dword(0).dword(0x200).dword(0x50010000).word(x).word(y).word(width).word(height);
        return dword(id);
    }

    std::vector<std::byte> bytes;

private:
    template <class Number>
    TemplateBytes& append(Number number) {
        const auto* first = reinterpret_cast<const std::byte*>(&number);
        bytes.insert(bytes.end(), first, first + sizeof number);
        return *this;
    }
};

}  // namespace

TEST(DialogTemplate, ReadsSizeAndItems) {
    TemplateBytes source;
    source.header(0, 2);
    source.item(1001, 1, 2, 3, 4).ordinal(0x81).text(u"odd").word(0);
    source.item(0xFFFFFFFF, -5, -6, 7, 8).text(u"CellStrip").text(u"").word(3).word(0).bytes.push_back({});
    const DialogTemplate read = ParseDialogTemplate(source.bytes);
    EXPECT_EQ(read.width, 758);
    EXPECT_EQ(read.height, 503);
    ASSERT_EQ(read.items.size(), 2U);
    EXPECT_EQ(read.items[0].id, 1001U);
    EXPECT_EQ(read.items[0].className, u"Edit");
    EXPECT_EQ(read.items[0].text, u"odd");
    EXPECT_EQ(read.items[0].exStyle, 0x200U);
    EXPECT_EQ(read.items[0].style, 0x50010000U);
    EXPECT_EQ(read.items[1].className, u"CellStrip");
    EXPECT_EQ(read.items[1].x, -5);
    EXPECT_EQ(read.items[1].y, -6);
    EXPECT_EQ(read.items[1].width, 7);
    EXPECT_EQ(read.items[1].height, 8);
}

TEST(DialogTemplate, SystemClassesAreNamed) {
    const std::vector<std::u16string> names = {u"Button",  u"Edit",      u"Static",
                                               u"ListBox", u"ScrollBar", u"ComboBox"};
    TemplateBytes source;
    source.header(0, static_cast<int>(names.size()));
    for (int i = 0; i < static_cast<int>(names.size()); ++i)
        source.item(i, 0, 0, 0, 0).ordinal(0x80 + i).text(u"").word(0);
    const DialogTemplate read = ParseDialogTemplate(source.bytes);
    for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(read.items[i].className, names[i]);
}

TEST(DialogTemplate, AFontIsSkipped) {
    TemplateBytes source;
    source.header(0x40, 1).word(9).word(400).word(1).text(u"Segoe UI");
    source.item(7, 0, 0, 0, 0).ordinal(0x82).text(u"label").word(0);
    const DialogTemplate read = ParseDialogTemplate(source.bytes);
    ASSERT_EQ(read.items.size(), 1U);
    EXPECT_EQ(read.items[0].text, u"label");
}

TEST(DialogTemplate, TheWindowHasItsStylesMenuAndCaption) {
    TemplateBytes source;
    source.header(0x80C80000, 0);
    const DialogTemplate read = ParseDialogTemplate(source.bytes);
    EXPECT_EQ(read.style, 0x80C80000U);
    EXPECT_EQ(read.exStyle, 0x10000U);
    EXPECT_EQ(read.menu, u"mnuTest");
    EXPECT_EQ(read.caption, u"Caption");
}

TEST(DialogTemplate, EveryCutIsRefused) {
    TemplateBytes source;
    source.header(0, 1);
    source.item(7, 0, 0, 0, 0).ordinal(0x82).text(u"x").word(2).word(0);
    for (std::size_t size = 0; size < source.bytes.size(); ++size) {
        EXPECT_THROW(ParseDialogTemplate({source.bytes.data(), size}), std::runtime_error) << size;
    }
    EXPECT_NO_THROW(ParseDialogTemplate(source.bytes));
}
