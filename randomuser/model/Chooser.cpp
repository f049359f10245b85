#include "randomuser/model/Chooser.h"

#include <array>
#include <utility>

namespace {

/// How often each action comes, of all that are possible. What takes long comes seldom.
constexpr std::array weights = std::to_array<std::pair<Kind, int>>({
    {Kind::start, 3000},       {Kind::sliderKeys, 1000},
    {Kind::sliderArrow, 300},  {Kind::sliderDrag, 20},
    {Kind::barClick, 500},     {Kind::selectMark, 400},
    {Kind::markKeys, 70},      {Kind::typeValue, 400},
    {Kind::enterValue, 150},   {Kind::pressSet, 60},
    {Kind::setMode, 100},      {Kind::typeName, 100},
    {Kind::eraseName, 60},     {Kind::copyColor, 100},
    {Kind::pasteColor, 120},   {Kind::findNames, 120},
    {Kind::properties, 8},     {Kind::notation, 250},
    {Kind::notationKeys, 150}, {Kind::jsNames, 40},
    {Kind::pickMode, 20},      {Kind::pickDrag, 30},
    {Kind::pickRight, 20},     {Kind::openPicker, 15},
    {Kind::swatch, 500},       {Kind::rightSwatch, 20},
    {Kind::sortOrder, 15},     {Kind::closePicker, 45},
    {Kind::comeBack, 150},     {Kind::otherInFront, 8},
    {Kind::otherCopies, 8},    {Kind::otherHolds, 4},
    {Kind::otherLetsGo, 80},   {Kind::settle, 4},
    {Kind::newPalette, 16},    {Kind::openPalette, 8},
    {Kind::openInNotepad, 1},  {Kind::savePalette, 4},
    {Kind::savePaletteAs, 3},  {Kind::close, 1},
    {Kind::answer, 3000},      {Kind::choosePath, 1500},
    {Kind::cancelDialog, 800}, {Kind::vainClick, 60},
    {Kind::barKeys, 60},       {Kind::swatchKeys, 100},
    {Kind::tabs, 30},          {Kind::openOptions, 4},
    {Kind::chooseRow, 1000},   {Kind::chooseOption, 1500},
    {Kind::openFormat, 4},     {Kind::insertToken, 1000},
    {Kind::typeFormat, 500},   {Kind::openAbout, 2},
    {Kind::closeDialog, 1000}, {Kind::help, 1},
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

constexpr std::array formats = std::to_array<const char*>(
    {"", "%UR%", "x", "%DR%/%UG%-%LB% & %LD%", "%%UR%%", "rgb %DR%, %DG%, %DB%;", "no token at all"});

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
    switch (kind) {
        case Kind::start: return {kind, 0, below(4)};
        case Kind::sliderKeys: return {kind, below(3), below(8) + 8 * (1 + below(3))};
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
        case Kind::barKeys: return {kind, below(2), below(16)};
        case Kind::tabs: return {kind, 0, below(30)};
        case Kind::openOptions:
        case Kind::openFormat:
        case Kind::help:
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
        case Kind::rightSwatch:
        case Kind::swatchKeys: return swatch(kind);
        case Kind::sortOrder: return {kind, 0, below(2)};
        case Kind::otherCopies: return {kind, 0, 0, oneOf(copiedTexts)};
        default: return filledInBox(kind);
    }
}

Action Chooser::filledInBox(Kind kind) {
    switch (kind) {
        case Kind::answer: return {kind, below(3), button()};
        case Kind::choosePath:
            return {kind, 0, 0,
                    std::string(filesFolder) + '\\' + (below(120) == 0 ? missingPath : oneOf(paths))};
        case Kind::vainClick: return {kind, 0, below(6)};
        case Kind::chooseRow: return {kind, 0, below(12)};
        case Kind::chooseOption: return {kind, 0, below(4)};
        case Kind::insertToken: return {kind, 0, below(10)};
        case Kind::typeFormat: return {kind, 0, 0, oneOf(formats)};
        case Kind::closeDialog: return {kind, below(2), 1 + below(2)};
        default: return {kind};
    }
}

/// Aliceblue, which a search does not know, comes more often than the others.
Action Chooser::swatch(Kind kind) {
    constexpr std::array counts = {216, 16, 140};
    const int window = below(3);
    const bool isFirst = below(5) == 0;
    return {kind, window, isFirst ? 0 : below(counts.at(window))};
}
