#include "randomuser/model/Box.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace {

/// What is seen of a box, and the numbers of its buttons.
struct Shape {
    Box::Kind kind;
    BoxKind look;
    const char* title;
    std::string_view buttons;
};

/// In the order of Box::Kind.
constexpr std::array shapes = std::to_array<Shape>({
    {Box::Kind::none, BoxKind::none, "", ""},
    {Box::Kind::question, BoxKind::message, "Huevox", "267"},
    {Box::Kind::refusal, BoxKind::message, "Huevox", "1"},
    {Box::Kind::report, BoxKind::message, "Colour Properties", "1"},
    {Box::Kind::offer, BoxKind::message, "Colour Properties", "67"},
    {Box::Kind::fatal, BoxKind::message, "Huevox", "1"},
    {Box::Kind::message, BoxKind::message, "Huevox", "1"},
    {Box::Kind::save, BoxKind::file, "Save Palette As", ""},
    {Box::Kind::open, BoxKind::file, "Open Palette In Huevox", ""},
    {Box::Kind::notepad, BoxKind::file, "Open Palette In Notepad", ""},
    {Box::Kind::overwrite, BoxKind::message, "Save Palette As", "67"},
    {Box::Kind::options, BoxKind::options, "Options", ""},
    {Box::Kind::format, BoxKind::format, "Custom Format", ""},
    {Box::Kind::about, BoxKind::about, "About Huevox", ""},
});
static_assert(std::ranges::is_sorted(shapes, {}, &Shape::kind));
static_assert(shapes.size() == static_cast<std::size_t>(Box::Kind::about) + 1);

const Shape& ShapeOf(Box::Kind kind) { return shapes.at(static_cast<std::size_t>(kind)); }

}  // namespace

bool Box::isFileDialog() const { return ShapeOf(kind).look == BoxKind::file; }

bool Box::hasButton(int number) const {
    return ShapeOf(kind).buttons.find(static_cast<char>('0' + number)) != std::string_view::npos;
}

void Box::tell(Look& look) const {
    if (isOpen()) look.box = {ShapeOf(kind).look, ShapeOf(kind).title, text};
}

void Box::show(Kind shown, const std::string& message) {
    kind = shown;
    text = message;
}

Box::Kind Box::close() {
    clipboard.restartCountdown();
    return std::exchange(kind, Kind::none);
}
