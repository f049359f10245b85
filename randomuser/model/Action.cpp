#include "randomuser/model/Action.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

/// In the order of Kind.
constexpr std::array kindNames = std::to_array<std::string_view>({
    "start",         "sliderKeys",   "sliderArrow",   "sliderDrag",  "barClick",   "selectMark",
    "markKeys",      "typeValue",    "enterValue",    "pressSet",    "setMode",    "typeName",
    "eraseName",     "copyColor",    "pasteColor",    "findNames",   "properties", "notation",
    "notationKeys",  "jsNames",      "pickMode",      "pickDrag",    "pickRight",  "openPicker",
    "swatch",        "rightSwatch",  "sortOrder",     "closePicker", "comeBack",   "otherInFront",
    "otherCopies",   "otherHolds",   "otherLetsGo",   "settle",      "newPalette", "openPalette",
    "openInNotepad", "savePalette",  "savePaletteAs", "close",       "answer",     "choosePath",
    "cancelDialog",  "vainClick",    "barKeys",       "swatchKeys",  "tabs",       "openOptions",
    "chooseRow",     "chooseOption", "openFormat",    "insertToken", "typeFormat", "openAbout",
    "closeDialog",   "help",
});
static_assert(kindNames.size() == static_cast<std::size_t>(Kind::help) + 1);

/// Takes the characters up to the next blank, and the blank, away from line.
std::string_view NextWord(std::string_view& line) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

bool ReadNumber(std::string_view word, int& number) {
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    return error == std::errc() && end == word.data() + word.size();
}

}  // namespace

std::string LineOf(const Action& action) {
    std::string line(kindNames[static_cast<std::size_t>(action.kind)]);
    line += ' ' + std::to_string(action.which) + ' ' + std::to_string(action.value);
    return action.text.empty() ? line : line + ' ' + action.text;
}

std::optional<Action> ParseLine(std::string_view line) {
    const auto name = std::ranges::find(kindNames, NextWord(line));
    if (name == kindNames.end()) return std::nullopt;
    Action action;
    action.kind = static_cast<Kind>(name - kindNames.begin());
    if (!ReadNumber(NextWord(line), action.which) || !ReadNumber(NextWord(line), action.value))
        return std::nullopt;
    action.text = line;
    return action;
}
