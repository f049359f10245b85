#include <algorithm>

#include "randomuser/model/Model.h"

namespace {

constexpr int cancel = 2;
constexpr int yes = 6;

std::string NamePart(const std::string& path) { return path.substr(path.rfind('\\') + 1); }
std::string FolderPart(const std::string& path) { return path.substr(0, path.rfind('\\')); }

SixMarks NewMarks() {
    SixMarks marks;
    marks.names.fill(noName);
    marks.colors = {ColorOf(255, 0, 0),   ColorOf(255, 255, 0), ColorOf(0, 255, 0),
                    ColorOf(0, 255, 255), ColorOf(0, 0, 255),   ColorOf(255, 0, 255)};
    return marks;
}

bool AreEqualNames(const std::string& one, const std::string& other) {
    const auto plain = [](const std::string& name) { return name == notJavaScript ? noName : name; };
    return plain(one) == plain(other);
}

}  // namespace

void Model::start(int variant) {
    *this = Model(*facts);
    isRunning = true;
    settings = SettingsOf(variant);
    stored = settings;
    notation = settings.formatIndex;
    allFiles = FilesAtStart();
    newPalette();
}

bool Model::isChanged() const {
    if (marks.colors != saved.colors) return true;
    return !std::ranges::equal(marks.names, saved.names, AreEqualNames);
}

void Model::playFiles(const Action& action) {
    switch (action.kind) {
        case Kind::start: return start(action.value);
        case Kind::properties: return show(Box::report, facts->report(current(), marks.names.at(selected)));
        case Kind::newPalette: return begin(After::newPalette);
        case Kind::openPalette:
            if (!isPickMode) begin(After::open);
            return;
        case Kind::openInNotepad:
            if (!isPickMode) show(Box::notepad);
            return;
        case Kind::savePalette: return save();
        case Kind::savePaletteAs: return show(Box::save);
        case Kind::close: return begin(After::close);
        case Kind::answer: return answer(action.value);
        case Kind::choosePath: return choosePath(action.text);
        case Kind::cancelDialog: return cancelDialog();
        default: return;
    }
}

/// A command that asks first, when there is something to save.
void Model::begin(After command) {
    after = command;
    const bool asks = isChanged() && (command != After::close || settings.promptToSave == 1);
    if (asks) return show(Box::question, "The palette has been changed. Do you want to save it?");
    goOn();
}

void Model::goOn() {
    const After command = after;
    after = After::nothing;
    if (command == After::newPalette) newPalette();
    if (command == After::open) show(Box::open);
    if (command == After::close) isRunning = false;
}

void Model::show(Box kind, const std::string& text) {
    box = kind;
    boxText = text;
}

void Model::answer(int button) {
    const Box answered = box;
    box = Box::none;
    restartCountdown();
    switch (answered) {
        case Box::question:
            if (button == yes) return save();
            if (button != cancel) return goOn();
            after = After::nothing;
            return;
        case Box::refusal:
            isSetEnabled = false;
            isModeLocked = false;
            return;
        case Box::report:
            if (button == yes) typeName(selected, facts->nameOf(current()));
            return;
        case Box::fatal:
            isRunning = false;
            exitCode = 1;
            return;
        case Box::message: return goOn();
        case Box::overwrite: return button == yes ? saveTo(boxPath) : show(Box::save);
        default: return;
    }
}

void Model::choosePath(const std::string& path) {
    const Box answered = box;
    boxPath = path;
    if (answered == Box::save && allFiles.contains(path))
        return show(Box::overwrite, "File already exists.\nDo you want to replace it?");
    box = Box::none;
    restartCountdown();
    if (answered == Box::save) return saveTo(path);
    folder = FolderPart(path);
    if (answered == Box::open) openFile(path);
}

void Model::cancelDialog() {
    const bool isSaving = box == Box::save;
    box = Box::none;
    restartCountdown();
    // Only a new palette is given up.
    if (isSaving && after == After::newPalette) after = After::nothing;
    if (isSaving) goOn();
}

void Model::newPalette() { showPalette(NewMarks(), "New palette"); }

void Model::save() {
    if (paletteName == "New palette") return show(Box::save);
    saveTo(folder + '\\' + paletteName);
}

void Model::saveTo(const std::string& path) {
    folder = FolderPart(path);
    File& file = allFiles[path];
    if (file.isReadOnly) return show(Box::message, "Could not save. Check if file or folder is read-only.");
    saved = marks;
    std::ranges::replace(saved.names, notJavaScript, noName);
    file = {PaletteText(saved, settings.customFormat), false, saved};
    paletteName = NamePart(path);
    highlighted.fill(false);
    goOn();
}

void Model::openFile(const std::string& path) {
    const auto found = allFiles.find(path);
    if (found == allFiles.end())
        return show(Box::fatal, "Huevox encountered an unexpected error and must close.");
    const File& file = found->second;
    const bool isTooLong = file.isLong && !wasLastOpenAccepted;
    if (!isTooLong) wasLastOpenAccepted = file.palette.has_value();
    if (!isTooLong && file.palette) return showPalette(*file.palette, NamePart(path));
    show(Box::message, "You tried to open the file\r\n\r\n" + path +
                           "\r\n\r\nThis file has not been made in Huevox and cannot be opened in Huevox");
}

void Model::showPalette(const SixMarks& palette, const std::string& name) {
    const SixMarks shown = marks;
    marks = palette;
    for (std::size_t mark = 0; mark < marks.names.size(); ++mark) {
        // A box that shows the placeholder already is not told of a change that would take it away.
        if (marks.names[mark] == notJavaScript && shown.names[mark] != notJavaScript)
            marks.names[mark] = noName;
    }
    saved = marks;
    paletteName = name;
    selected = 0;
    highlighted.fill(false);
    applyAgain();
    refreshLetters();
}
