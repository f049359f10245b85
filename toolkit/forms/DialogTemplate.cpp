#include "toolkit/forms/DialogTemplate.h"

#include <array>
#include <cstring>
#include <stdexcept>

namespace {

constexpr std::uint32_t usesFont = 0x40;  // DS_SETFONT
constexpr std::uint16_t isOrdinal = 0xFFFF;
constexpr std::uint16_t firstSystemClass = 0x80;
constexpr std::array<const char16_t*, 6> systemClasses = {u"Button",  u"Edit",      u"Static",
                                                          u"ListBox", u"ScrollBar", u"ComboBox"};

class TemplateReader {
public:
    explicit TemplateReader(std::span<const std::byte> bytes) : bytes(bytes) {}

    template <class Number>
    Number read() {
        Number number{};
        std::memcpy(&number, take(sizeof number).data(), sizeof number);
        return number;
    }

    /// A text, or a number in place of one, which comes back as a text of that one character.
    std::u16string readName() {
        std::u16string name;
        auto unit = read<char16_t>();
        if (unit == isOrdinal) return {read<char16_t>()};
        for (; unit != 0; unit = read<char16_t>()) name += unit;
        return name;
    }

    void skip(std::size_t count) { take(count); }
    void align() { skip((4 - at % 4) % 4); }

private:
    std::span<const std::byte> take(std::size_t count) {
        if (count > bytes.size() - at) throw std::runtime_error("dialog template cut short");
        at += count;
        return bytes.subspan(at - count, count);
    }

    std::span<const std::byte> bytes;
    std::size_t at = 0;
};

std::u16string ClassName(const std::u16string& name) {
    const std::size_t index = name.empty() ? systemClasses.size() : name.front() - firstSystemClass;
    return name.size() == 1 && index < systemClasses.size() ? systemClasses[index] : name;
}

void SkipFont(TemplateReader& reader) {
    reader.skip(6);  // size, weight, italic, character set
    reader.readName();
}

TemplateItem ReadItem(TemplateReader& reader) {
    TemplateItem item;
    reader.align();
    reader.skip(4);  // help id
    item.exStyle = reader.read<std::uint32_t>();
    item.style = reader.read<std::uint32_t>();
    item.x = reader.read<std::int16_t>();
    item.y = reader.read<std::int16_t>();
    item.width = reader.read<std::int16_t>();
    item.height = reader.read<std::int16_t>();
    item.id = reader.read<std::uint32_t>();
    item.className = ClassName(reader.readName());
    item.text = reader.readName();
    reader.skip(reader.read<std::uint16_t>());
    return item;
}

}  // namespace

DialogTemplate ParseDialogTemplate(std::span<const std::byte> bytes) {
    TemplateReader reader(bytes);
    DialogTemplate result;
    reader.skip(8);  // version, signature, help id
    result.exStyle = reader.read<std::uint32_t>();
    result.style = reader.read<std::uint32_t>();
    const auto itemCount = reader.read<std::uint16_t>();
    reader.skip(4);  // position
    result.width = reader.read<std::int16_t>();
    result.height = reader.read<std::int16_t>();
    result.menu = reader.readName();
    reader.readName();  // window class
    result.caption = reader.readName();
    if (result.style & usesFont) SkipFont(reader);
    for (int i = 0; i < itemCount; ++i) result.items.push_back(ReadItem(reader));
    return result;
}
