#include "randomuser/Session.h"

#include "randomuser/Inspection.h"
#include "tests/driver/Figures.h"
#include "tests/driver/Input.h"
#include "tests/driver/Palettes.h"

std::string Session::play(const Action& action) {
    const Earlier earlier = {model.look(), model.files(), model.clipboard()};
    model.play(action);
    const double begin = NowInMilliseconds();
    const bool isAll = ++steps % stepsToEverything == 0 || action.kind == Kind::start;
    std::string found = act(action, earlier.look);
    if (found.empty()) found = disagreement(earlier, isAll ? Extent::everything : Extent::changes);
    const Look look = model.look();
    if (!look.isRunning) {
        program.reset();
    } else {
        measurements.addStep(action, NowInMilliseconds() - begin);
        measurements.addUsage(action, look, *program);
    }
    return found;
}

/// What has been waited for in vain, or "".
std::string Session::act(const Action& action, const Look& earlier) {
    if (action.kind == Kind::start) return start(action.value);
    std::string found = program->hands.play(action, earlier);
    if (found.empty() && action.kind == Kind::settle)
        found = clipboardWatch.settle(program->eyes.main(), model.look().preview, patience);
    return found;
}

std::string Session::start(int variant) {
    // The program before may have ended while the clipboard was held.
    other.letGo();
    PrepareStart(SettingsOf(variant));
    program = std::make_unique<Program>(other, patience);
    if (!program->process) return "start: no window";
    measurements.begin(*program);
    return "";
}

std::string Session::disagreement(const Earlier& earlier, Extent extent) {
    std::string found = windowDifference(earlier.look, extent);
    if (found.empty()) found = filesDifference(earlier.files);
    if (found.empty()) found = clipboardWatch.difference(earlier.clipboard, model.clipboard());
    return found;
}

/// Waits until all that is seen is as the model has it.
std::string Session::windowDifference(const Look& earlier, Extent extent) {
    constexpr DWORD tipTime = 500;
    const Look expected = model.look();
    const ULONGLONG begin = ::GetTickCount64();
    std::string found;
    Soon(
        [&] {
            found = Inspection(program->eyes, expected, earlier, extent).difference();
            // A tool tip may lie over what is looked at.
            if (::GetTickCount64() > begin + tipTime) MoveMouse({1, 1});
            return found.empty() || found.starts_with("hang");
        },
        patience);
    measurements.addAnswer(program->eyes.slowestAnswer());
    if (!found.empty()) return found + " (" + program->eyes.situation() + ')';
    return expected.isRunning ? "" : exitDifference();
}

std::string Session::exitDifference() const {
    const int expected = model.look().exitCode;
    const int seen = program->huevox.waitForEnd();
    if (seen == expected) return "";
    return "exit code: expected " + std::to_string(expected) + ", seen " + std::to_string(seen);
}

std::string Session::filesDifference(const Files& earlier) const {
    for (const auto& [path, file] : model.files()) {
        const auto found = earlier.find(path);
        const bool isAsBefore = found != earlier.end() && found->second.text == file.text;
        if (isAsBefore) continue;
        // The window may show no change when a file is saved once more.
        const auto isSaved = [&path = path, &file = file] { return ContentOf(path) == file.text; };
        if (!Soon(isSaved, patience)) return "file: " + path + " is not as it was saved";
    }
    return "";
}
