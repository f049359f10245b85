// Any bytes may be given as a dialog template: they are read field by field, or refused as cut short.
#include <array>
#include <span>
#include <stdexcept>

#include "fuzz/FuzzInput.h"
#include "toolkit/forms/DialogTemplate.h"

namespace {

const std::array<std::u16string, 6> systemClasses = {u"Button",  u"Edit",      u"Static",
                                                     u"ListBox", u"ScrollBar", u"ComboBox"};

/// Reads little-endian numbers one after another, and remembers whether the input ended too soon.
struct Layout {
    std::string_view bytes;
    std::size_t at = 0;
    bool isCutShort = false;

    std::uint32_t number(std::size_t size) {
        std::uint32_t value = 0;
        for (std::size_t digit = 0; digit < size; ++digit) {
            if (at >= bytes.size()) isCutShort = true;
            if (isCutShort) return 0;
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at++])) << (8 * digit);
        }
        return value;
    }
    int place() { return static_cast<std::int16_t>(number(2)); }
    std::u16string name() {
        std::uint32_t unit = number(2);
        if (unit == 0xFFFF) return {static_cast<char16_t>(number(2))};
        std::u16string text;
        for (; unit != 0; unit = number(2)) text += static_cast<char16_t>(unit);
        return text;
    }
    void skip(std::size_t count) {
        for (; count > 0 && !isCutShort; --count) number(1);
    }
};

void RequireItem(Layout& layout, const DialogTemplate* read, std::size_t index) {
    layout.skip((4 - layout.at % 4) % 4);
    layout.number(4);
    TemplateItem expected;
    expected.exStyle = layout.number(4);
    expected.style = layout.number(4);
    expected.x = layout.place();
    expected.y = layout.place();
    expected.width = layout.place();
    expected.height = layout.place();
    expected.id = layout.number(4);
    expected.className = layout.name();
    expected.text = layout.name();
    layout.skip(layout.number(2));
    if (layout.isCutShort || !read) return;
    const std::u16string& name = expected.className;
    if (name.size() == 1 && name[0] >= 0x80 && name[0] <= 0x85)
        expected.className = systemClasses[name[0] - 0x80];
    const TemplateItem& item = read->items.at(index);
    Require(item.exStyle == expected.exStyle && item.style == expected.style && item.id == expected.id);
    Require(item.x == expected.x && item.y == expected.y);
    Require(item.width == expected.width && item.height == expected.height);
    Require(item.className == expected.className && item.text == expected.text);
}

/// Walks through the template and compares it with what was read; nullptr if it was refused.
void RequireSame(std::string_view bytes, const DialogTemplate* read) {
    Layout layout{bytes};
    layout.skip(8);
    const std::uint32_t exStyle = layout.number(4);
    const std::uint32_t style = layout.number(4);
    const std::size_t count = layout.number(2);
    layout.skip(4);
    const int width = layout.place();
    const int height = layout.place();
    const std::u16string menu = layout.name();
    layout.name();
    const std::u16string caption = layout.name();
    if ((style & 0x40) != 0) {
        layout.skip(6);
        layout.name();
    }
    if (read) {
        Require(!layout.isCutShort && read->width == width && read->height == height);
        Require(read->style == style && read->exStyle == exStyle);
        Require(read->menu == menu && read->caption == caption);
        Require(read->items.size() == count);
    }
    for (std::size_t index = 0; index < count && !layout.isCutShort; ++index)
        RequireItem(layout, read, index);
    Require(layout.isCutShort == (read == nullptr));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const DialogTemplate read = ParseDialogTemplate(std::as_bytes(std::span(data, size)));
        RequireSame(bytes, &read);
    } catch (const std::runtime_error&) {
        RequireSame(bytes, nullptr);
    }
    return 0;
}
