#include "randomuser/Chooser.h"

#include <array>
#include <utility>

namespace {

/// How often each action comes, of all that are possible. What takes long comes seldom.
constexpr std::array weights = std::to_array<std::pair<Kind, int>>({
    {Kind::start, 100},       {Kind::sliderKeys, 160}, {Kind::sliderArrow, 60},  {Kind::sliderDrag, 15},
    {Kind::barClick, 80},     {Kind::selectMark, 80},  {Kind::markKeys, 40},     {Kind::typeValue, 80},
    {Kind::enterValue, 40},   {Kind::pressSet, 30},    {Kind::setMode, 40},      {Kind::typeName, 50},
    {Kind::eraseName, 20},    {Kind::copyColor, 30},   {Kind::pasteColor, 40},   {Kind::findNames, 20},
    {Kind::properties, 10},   {Kind::notation, 50},    {Kind::notationKeys, 40}, {Kind::jsNames, 20},
    {Kind::pickMode, 15},     {Kind::pickDrag, 20},    {Kind::pickRight, 15},    {Kind::openPicker, 5},
    {Kind::swatch, 60},       {Kind::rightSwatch, 6},  {Kind::sortOrder, 10},    {Kind::closePicker, 15},
    {Kind::comeBack, 120},    {Kind::otherInFront, 4}, {Kind::otherCopies, 3},   {Kind::otherHolds, 2},
    {Kind::otherLetsGo, 40},  {Kind::settle, 6},       {Kind::newPalette, 3},    {Kind::openPalette, 3},
    {Kind::openInNotepad, 1}, {Kind::savePalette, 3},  {Kind::savePaletteAs, 2}, {Kind::close, 1},
    {Kind::answer, 300},      {Kind::choosePath, 150}, {Kind::cancelDialog, 60}, {Kind::vainClick, 60},
});

constexpr std::array valueTexts = std::to_array<const char*>(
    {"0",  "7",  "007", "255", "256", "128", "51", "102", "204", "240", "-1",  "1.5", "1e2", "x",
     "ff", "0f", "F",   "FFF", "G0",  "c0",  "80", "FA",  "33",  "",    " 9 ", "9 ",  "999", "ABCD"});

constexpr std::array nameTexts = std::to_array<const char*>(
    {"navy", "Navy", "red", "cyan", "aqua", "magenta", "White", "white", "black", "sea, [deep]",
     "Type a colour name", "Not JavaScript colour", "not javascript colour", "", "x", "100% & more",
     "a name that is far too long"});

constexpr std::array paths = std::to_array<const char*>({"some.txt", "old.txt", "long.txt", "letter.txt",
                                                         "locked.txt", "other\\some.txt", "one.txt",
                                                         "two.txt", "other\\one.txt", "New palette.txt"});
constexpr const char* missingPath = "nowhere.txt";

constexpr std::array copiedTexts = std::to_array<const char*>({"theirs", "#123456", "two\r\nlines"});

}  // namespace

Action Chooser::next(const Model& model) {
    while (true) {
        Action action = filled(kind());
        if (model.isPossible(action)) return action;
    }
}

Kind Chooser::kind() {
    int all = 0;
    for (const auto& [any, weight] : weights) all += weight;
    int left = below(all);
    for (const auto& [chosen, weight] : weights) {
        left -= weight;
        if (left < 0) return chosen;
    }
    return Kind::settle;
}

int Chooser::button() {
    constexpr std::array buttons = {1, 2, 6, 7};
    return buttons.at(below(4));
}

Action Chooser::filled(Kind kind) {
    const auto oneOf = [this](const auto& texts) {
        return std::string(texts.at(below(static_cast<int>(texts.size()))));
    };
    switch (kind) {
        case Kind::start: return {kind, 0, below(4)};
        case Kind::sliderKeys: return {kind, below(3), below(8) + 8 * (1 + below(12))};
        case Kind::sliderArrow: return {kind, below(3), below(2) * 2 - 1};
        case Kind::sliderDrag: return {kind, below(3), below(2) * 255};
        case Kind::barClick: return {kind, 0, below(256)};
        case Kind::selectMark:
        case Kind::eraseName: return {kind, below(6)};
        case Kind::markKeys: return {kind, 0, below(9) - 4};
        case Kind::typeValue: return {kind, below(3), 0, oneOf(valueTexts)};
        case Kind::enterValue: return {kind, below(3)};
        case Kind::setMode: return {kind, 0, below(2)};
        case Kind::typeName: return {kind, below(6), 0, oneOf(nameTexts)};
        case Kind::copyColor:
        case Kind::pasteColor:
        case Kind::findNames:
        case Kind::properties:
        case Kind::newPalette:
        case Kind::openPalette:
        case Kind::openInNotepad:
        case Kind::savePalette:
        case Kind::close: return {kind, below(3)};
        case Kind::notation: return {kind, 0, below(12)};
        case Kind::notationKeys: return {kind, 0, below(9) - 4};
        case Kind::pickDrag: return {kind, below(7), below(256)};
        case Kind::openPicker:
        case Kind::closePicker: return {kind, below(3)};
        case Kind::swatch:
        case Kind::rightSwatch: return swatch(kind);
        case Kind::sortOrder: return {kind, 0, below(2)};
        case Kind::otherCopies: return {kind, 0, 0, oneOf(copiedTexts)};
        case Kind::answer: return {kind, 0, button()};
        case Kind::choosePath:
            return {kind, 0, 0,
                    std::string(filesFolder) + '\\' + (below(30) == 0 ? missingPath : oneOf(paths))};
        case Kind::vainClick: return {kind, 0, below(6)};
        default: return {kind};
    }
}

Action Chooser::swatch(Kind kind) {
    constexpr std::array counts = {216, 16, 140};
    const int window = below(3);
    return {kind, window, below(counts.at(window))};
}
