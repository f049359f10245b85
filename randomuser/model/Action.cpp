#include "randomuser/model/Action.h"

#include <algorithm>
#include <charconv>

#include "randomuser/model/Rows.h"

namespace {

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
    std::string line = RowOf(action.kind).name;
    line += ' ' + std::to_string(action.which) + ' ' + std::to_string(action.value);
    return action.text.empty() ? line : line + ' ' + action.text;
}

std::optional<Action> ParseLine(std::string_view line) {
    const auto* const row = std::ranges::find(AllRows(), NextWord(line), &Row::name);
    if (row == AllRows().end()) return std::nullopt;
    Action action;
    action.kind = row->kind;
    if (!ReadNumber(NextWord(line), action.which) || !ReadNumber(NextWord(line), action.value))
        return std::nullopt;
    action.text = line;
    return action;
}
