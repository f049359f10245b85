#include "randomuser/Session.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "randomuser/Soon.h"
#include "tests/driver/Figures.h"
#include "tests/driver/Palettes.h"

namespace {

void MakeFiles() {
    std::error_code ignored;
    for (const auto& [path, file] : FilesAtStart()) ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    std::filesystem::remove_all(filesFolder, ignored);
    std::filesystem::create_directories(secondFolder);
    for (const auto& [path, file] : FilesAtStart()) {
        WriteContent(path, file.text);
        if (file.isReadOnly) ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    }
}

void StoreSettings(const StoredSettings& settings) {
    StoreText("CustomFormat", settings.customFormat);
    StoreText("FormatIndex", std::to_string(settings.formatIndex));
    StoreText("SortIndex", std::to_string(settings.sortIndex));
    StoreText("PromptToSave", std::to_string(settings.promptToSave));
    StoreText("StandardFolder", filesFolder);
}

}  // namespace

Session::Session(const Facts& facts, Figures& figures, unsigned patience)
    : figures(figures), patience(patience), model(facts) {}

Session::~Session() = default;

Session::Program::~Program() {
    huevox.kill();
    ::CloseHandle(process);
}

std::string Session::play(const Action& action) {
    const Look earlier = model.look();
    const Files filesBefore = model.files();
    const ClipboardFact clipboardBefore = model.clipboard();
    model.play(action);
    const double begin = NowInMilliseconds();
    const bool isAll = ++steps % stepsToEverything == 0 || action.kind == Kind::start;
    const Extent extent = isAll ? Extent::everything : Extent::changes;
    std::string found;
    if (action.kind == Kind::start) {
        found = start(action.value);
    } else {
        found = program->hands->play(action, earlier);
    }
    if (found.empty() && action.kind == Kind::settle) found = settle();
    if (found.empty()) found = agree(earlier, extent);
    if (found.empty()) found = filesDifference(filesBefore);
    if (found.empty()) found = clipboardDifference(clipboardBefore);
    if (!model.look().isRunning) {
        program.reset();
    } else {
        measure(action, NowInMilliseconds() - begin);
    }
    return found;
}

std::string Session::start(int variant) {
    // The program before may have ended while the clipboard was held.
    other.letGo();
    StoreSettings(SettingsOf(variant));
    MakeFiles();
    program = std::make_unique<Program>();
    if (!program->huevox.waitForWindow()) return "start: no window";
    const HWND window = program->huevox.window();
    Reach::moveTo(window, {0, 0});
    DWORD id = 0;
    ::GetWindowThreadProcessId(window, &id);
    program->process = ::OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
    program->eyes = std::make_unique<Eyes>(window, program->process);
    program->hands = std::make_unique<Hands>(program->huevox, *program->eyes, other, patience);
    figures.bits = BitsOf(program->process);
    ++figures.starts;
    return "";
}

/// Waits until all that is seen is as the model has it.
std::string Session::agree(const Look& earlier, Extent extent) {
    constexpr DWORD tipTime = 500;
    const Look expected = model.look();
    const ULONGLONG begin = ::GetTickCount64();
    std::string found;
    Soon(
        [&] {
            found = program->eyes->difference(expected, earlier, extent);
            // A tool tip may lie over what is looked at.
            if (::GetTickCount64() > begin + tipTime) MoveMouse({1, 1});
            return found.empty() || found.starts_with("hang");
        },
        patience);
    figures.slowestAnswer = std::max(figures.slowestAnswer, program->eyes->slowestAnswer());
    if (!found.empty()) return found + " (" + program->eyes->situation() + ')';
    if (expected.isRunning) return "";
    const int exitCode = program->huevox.waitForEnd();
    if (exitCode == expected.exitCode) return "";
    return "exit code: expected " + std::to_string(expected.exitCode) + ", seen " + std::to_string(exitCode);
}

std::string Session::filesDifference(const Files& before) const {
    for (const auto& [path, file] : model.files()) {
        const auto found = before.find(path);
        const bool isAsBefore = found != before.end() && found->second.text == file.text;
        if (isAsBefore) continue;
        // The window may show no change when a file is saved once more.
        const auto isSaved = [&path = path, &file = file] { return ContentOf(path) == file.text; };
        if (!Soon(isSaved, patience)) return "file: " + path + " is not as it was saved";
    }
    return "";
}

/// What was copied stays, and while a copy is due its time counts from now.
std::string Session::clipboardDifference(const ClipboardFact& before) {
    const ClipboardFact& clipboard = model.clipboard();
    const DWORD number = ::GetClipboardSequenceNumber();
    const bool wasKnown = before.state == ClipboardFact::State::known;
    const bool isKnown = clipboard.state == ClipboardFact::State::known;
    const bool isKept = wasKnown && isKnown && clipboard.text == before.text;
    if (isKept && !clipboard.isHeld && number != clipboardNumber && ClipboardText() != clipboard.text)
        return "clipboard: expected " + clipboard.text + ", seen " + ClipboardText();
    clipboardNumber = number;
    return "";
}

void Session::measure(const Action& action, double milliseconds) {
    const std::string line = LineOf(action);
    Figures::Share& share = figures.shares[line.substr(0, line.find(' '))];
    ++share.steps;
    share.milliseconds += milliseconds;
    if (milliseconds > figures.slowestStep) {
        figures.slowestStep = milliseconds;
        figures.slowestAction = line;
    }
    constexpr int warmUp = 500;
    constexpr int interval = 500;
    ++program->steps;
    const Look look = model.look();
    // The libraries of the help viewer and of the file dialogs come with the first of each, and stay.
    const bool loadsViewer = action.kind == Kind::help && !std::exchange(program->hasShownHelp, true);
    const bool loadsDialogs = look.box.kind == BoxKind::file && !std::exchange(program->hasShownFiles, true);
    if (loadsViewer || loadsDialogs) {
        program->growth = {};
        program->nextMeasure = program->steps + interval;
    }
    // Where nothing else is open, so that like is compared with like.
    const bool isPlain = !look.box.isOpen() && look.pickers == std::array<bool, 3>{};
    if (!isPlain || program->steps < program->nextMeasure) return;
    program->nextMeasure = program->steps + interval;
    if (program->steps < warmUp) return;
    Growth& growth = program->growth;
    growth.last = UsageOf(program->process, program->eyes->main());
    if (growth.steps == 0 && growth.first.bytes == 0) {
        growth.first = growth.last;
        program->firstStep = program->steps;
    }
    growth.steps = program->steps - program->firstStep;
    growth.pickMovements = program->hands->picks.movementCount();
    if (growth.steps >= figures.growth.steps) figures.growth = growth;
}
