#include "randomuser/Options.h"

#include <charconv>
#include <fstream>

namespace {

/// Reads a number from least to most that takes up the whole text.
template <class Number>
bool IsRead(std::string_view text, Number least, Number most, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number >= least && number <= most;
}

bool IsMinutes(std::string_view text, double& minutes) {
    constexpr double least = 0.01;
    constexpr double most = 10'000;
    return IsRead(text, least, most, minutes);
}

/// Whether the option is known and its value is good.
bool IsTaken(Options& options, std::string_view name, std::string_view value,
             std::string_view minutesOfTests) {
    constexpr int most = 1'000'000'000;
    if (name == "--seed") return IsRead(value, 0U, ~0U, options.seed);
    if (name == "--steps") return IsRead(value, 1, most, options.steps);
    if (name == "--minutes") return IsMinutes(value, options.minutes);
    if (name == "--replay") {
        options.replay = value;
        return !value.empty();
    }
    int users = 0;
    if (name != "--share-of-tests" || !IsRead(value, 1, most, users)) return false;
    if (!IsMinutes(minutesOfTests, options.minutes)) return false;
    options.minutes /= users;
    return true;
}

}  // namespace

Options ReadOptions(const std::vector<std::string_view>& arguments, std::string_view minutesOfTests) {
    Options options;
    for (std::size_t index = 0; index < arguments.size() && options.problem.empty(); index += 2) {
        const std::string name(arguments[index]);
        if (index + 1 == arguments.size()) {
            options.problem = "There is no value after " + name + '.';
        } else if (!IsTaken(options, name, arguments[index + 1], minutesOfTests)) {
            options.problem = "This is not understood: " + name + ' ' + std::string(arguments[index + 1]);
            if (name == "--share-of-tests")
                options.problem += " of " + std::string(minutesOfTests) + " minutes";
            options.problem += '.';
        }
    }
    return options;
}

Replay ReadReplay(const std::string& path) {
    Replay replay;
    std::ifstream file(path);
    if (!file) return {{}, path + " cannot be read."};
    for (std::string line; std::getline(file, line);) {
        const auto action = ParseLine(line);
        if (!action) {
            replay.problem = "A line of " + path + " is no action: ";
            replay.problem += line;
            return replay;
        }
        replay.actions.push_back(*action);
    }
    if (replay.actions.empty() || replay.actions.front().kind != Kind::start)
        replay.problem = "The first line of " + path + " does not start the program.";
    return replay;
}
