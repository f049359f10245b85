// A random user on the real program: soak [--seed N] [--steps N] [--minutes N] [--share-of-tests USERS]
// [--replay FILE]. Ends with 0 when the window has agreed with the model at every step.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "randomuser/Options.h"
#include "randomuser/Session.h"
#include "randomuser/Shorten.h"
#include "randomuser/model/Chooser.h"
#include "tests/core/NamedColors.h"

namespace {

/// Milliseconds: so many that only what never comes takes as long; fewer while many sequences are tried that
/// all end in a difference.
constexpr unsigned usualPatience = 60'000;
constexpr unsigned shortPatience = 1500;

/// What has become of a sequence: how many steps, and what differs at the last.
struct Outcome {
    Actions played = {};
    int steps = 0;
    double seconds = 0;
    std::string difference = {};
};

ULONGLONG EndAfter(double minutes) { return ::GetTickCount64() + static_cast<ULONGLONG>(minutes * 60'000); }

double SecondsSince(ULONGLONG begin) { return static_cast<double>(::GetTickCount64() - begin) / 1000; }

/// Of this program and of the share of the tests' time that it is given.
Options OptionsOf(int count, char** arguments) {
    const char* minutesOfTests = std::getenv("HUEVOX_SOAK_MINUTES");
    return ReadOptions({arguments + 1, arguments + count}, minutesOfTests ? minutesOfTests : "3");
}

Outcome PlayAtRandom(const Facts& facts, Figures& figures, const Options& options) {
    Outcome outcome;
    Session session(facts, figures, usualPatience);
    Chooser chooser(options.seed);
    const ULONGLONG begin = ::GetTickCount64();
    const ULONGLONG end = EndAfter(options.minutes);
    while (outcome.steps < options.steps && ::GetTickCount64() < end && outcome.difference.empty()) {
        const Action action = chooser.next(session.state());
        if (action.kind == Kind::start) outcome.played.clear();
        outcome.played.push_back(action);
        outcome.difference = session.play(action);
        ++outcome.steps;
        if (outcome.steps % 1000 == 0) std::printf("%d steps\n", outcome.steps);
    }
    outcome.seconds = SecondsSince(begin);
    return outcome;
}

Outcome Play(const Facts& facts, Figures& figures, const Actions& actions, unsigned patience) {
    Outcome outcome;
    Session session(facts, figures, patience);
    const ULONGLONG begin = ::GetTickCount64();
    outcome.played = Possible(actions, facts);
    for (const Action& action : outcome.played) {
        outcome.difference = session.play(action);
        ++outcome.steps;
        if (!outcome.difference.empty()) break;
    }
    outcome.seconds = SecondsSince(begin);
    return outcome;
}

std::string Field(const std::string& difference) { return difference.substr(0, difference.find(':')); }

void Print(const Actions& actions) {
    for (const Action& action : actions) std::puts(("    " + LineOf(action)).c_str());
}

void Save(const Actions& actions, const std::string& path) {
    std::ofstream file(path);
    for (const Action& action : actions) file << LineOf(action) << '\n';
}

void Report(const Facts& facts, const Options& options, const Outcome& outcome) {
    constexpr double minutesToShorten = 2;
    std::printf("seed %u, step %d, %s: %s\n", options.seed, outcome.steps,
                LineOf(outcome.played.back()).c_str(), outcome.difference.c_str());
    Figures ignored;
    const ULONGLONG end = EndAfter(minutesToShorten);
    const auto differs = [&](const Actions& actions, unsigned patience) {
        return Field(Play(facts, ignored, actions, patience).difference) == Field(outcome.difference);
    };
    const auto fails = [&](const Actions& actions) { return differs(actions, shortPatience); };
    const auto mayGoOn = [end] { return ::GetTickCount64() < end; };
    std::optional<Actions> shortest = ShortEnd(outcome.played, fails, mayGoOn);
    if (shortest) shortest = Possible(Shortened(*shortest, fails, mayGoOn), facts);
    // What was slow only has counted as a difference so far.
    if (shortest && differs(*shortest, usualPatience)) {
        std::puts("The shortest sequence found:");
    } else {
        std::puts("It did not happen again. The last actions were:");
        shortest = Actions(outcome.played.end() - std::min<std::ptrdiff_t>(20, std::ssize(outcome.played)),
                           outcome.played.end());
    }
    Print(*shortest);
    const std::string name = "soak-" + std::to_string(options.seed);
    Save(outcome.played, name + "-whole.txt");
    Save(*shortest, name + "-shortest.txt");
}

void PrintGrowth(const char* what, long long first, long long last, int steps) {
    const double each = steps > 0 ? 10'000.0 * static_cast<double>(last - first) / steps : 0;
    std::printf("    %s: %lld at first, %lld at last, %+.1f in 10,000 steps\n", what, first, last, each);
}

/// The kinds of actions that have taken most of the time.
void PrintShares(const Figures& figures) {
    constexpr std::ptrdiff_t most = 8;
    std::vector<std::pair<std::string, Figures::Share>> shares(figures.shares.begin(), figures.shares.end());
    std::ranges::sort(shares, std::greater(), [](const auto& share) { return share.second.milliseconds; });
    shares.resize(static_cast<std::size_t>(std::min(most, std::ssize(shares))));
    for (const auto& [kind, share] : shares)
        std::printf("    %s: %d steps, %.0f s, %.0f ms each\n", kind.c_str(), share.steps,
                    share.milliseconds / 1000, share.milliseconds / share.steps);
}

void Summarise(const Options& options, const Outcome& outcome, const Figures& figures) {
    const auto& [first, last, steps, movements, drops] = figures.growth;
    std::printf("seed %u, %d steps in %.0f s, %d starts of the program of %d bits\n", options.seed,
                outcome.steps, outcome.seconds, figures.starts, figures.bits);
    std::printf("%.1f ms a step, slowest answer %.0f ms, slowest step %.0f ms (%s)\n",
                1000 * outcome.seconds / std::max(1, outcome.steps), figures.slowestAnswer,
                figures.slowestStep, figures.slowestAction.c_str());
    PrintShares(figures);
    std::printf("in %d steps of one program, %d movements while picking and %d drops among them:\n", steps,
                movements, drops);
    PrintGrowth("KB of memory", first.bytes / 1024, last.bytes / 1024, steps);
    PrintGrowth("graphics objects", first.gdi, last.gdi, steps);
    PrintGrowth("windows", first.windows, last.windows, steps);
    PrintGrowth("handles", first.handles, last.handles, steps);
}

bool IsAsItMust(const Facts& facts, const Options& options, const Actions& replayed) {
    Figures figures;
    const Outcome outcome = replayed.empty() ? PlayAtRandom(facts, figures, options)
                                             : Play(facts, figures, replayed, usualPatience);
    Summarise(options, outcome, figures);
    const std::string grown = Grown(figures.growth);
    if (!grown.empty()) std::puts(grown.c_str());
    if (!outcome.difference.empty()) {
        Report(facts, options, outcome);
    } else if (grown.empty()) {
        std::puts("No difference.");
    }
    return outcome.difference.empty() && grown.empty();
}

}  // namespace

int main(int count, char** arguments) {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const Options options = OptionsOf(count, arguments);
    const Replay replay = options.replay.empty() ? Replay() : ReadReplay(options.replay);
    for (const std::string& problem : {options.problem, replay.problem}) {
        if (problem.empty()) continue;
        std::fprintf(stderr, "%s\n", problem.c_str());
        return 2;
    }
    const Facts facts(ReadJavaScriptColors());
    return IsAsItMust(facts, options, replay.actions) ? 0 : 1;
}
