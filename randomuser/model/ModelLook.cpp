#include <algorithm>

#include "randomuser/model/Model.h"
#include "resources/resource.h"

Look Model::look() const {
    Look look;
    look.isRunning = isRunning;
    look.exitCode = exitCode;
    if (!isRunning) return look;
    look.front = front;
    look.box = boxLook();
    look.pickers = pickers;
    look.title = "Huevox - " + paletteName;
    look.marks = marks;
    look.highlighted = highlighted;
    look.letters = letters;
    look.selected = selected;
    look.values = values;
    look.isSetEnabled = isSetEnabled;
    look.isModeEnabled = !isModeLocked;
    look.isDecimal = isDecimal;
    look.notation = areNamesCopied ? -1 : notation;
    look.preview =
        areNamesCopied ? facts->nameOf(current()) : CodeOf(notation, current(), settings.customFormat);
    look.areNamesCopied = areNamesCopied;
    look.isPickMode = isPickMode;
    look.isPasteEnabled = copied.has_value();
    look.focus = focus;
    return look;
}

BoxLook Model::boxLook() const {
    switch (box) {
        case Box::none: return {};
        case Box::report: return {BoxKind::message, "Colour Properties", boxText};
        case Box::overwrite: return {BoxKind::message, "Save Palette As", boxText};
        case Box::save: return {BoxKind::file, "Save Palette As"};
        case Box::open: return {BoxKind::file, "Open Palette In Huevox"};
        case Box::notepad: return {BoxKind::file, "Open Palette In Notepad"};
        case Box::options:
            return {BoxKind::options,     "Options", "", chosen.formatIndex, chosen.promptToSave == 1,
                    chosen.sortIndex == 1};
        case Box::format: return {BoxKind::format, "Custom Format", chosen.customFormat};
        case Box::about: return {BoxKind::about, "About Huevox"};
        default: return {BoxKind::message, "Huevox", boxText};
    }
}

bool Model::isPossible(const Action& action) const {
    switch (action.kind) {
        case Kind::start: return !isRunning;
        case Kind::otherHolds: return isRunning && !clip.isHeld;
        case Kind::otherLetsGo: return isRunning && clip.isHeld;
        case Kind::answer: return isRunning && isButton(action.value);
        case Kind::choosePath:
            // Notepad would ask whether to make a file that is missing.
            return isRunning && isFileDialog() && (box != Box::notepad || allFiles.contains(action.text));
        case Kind::cancelDialog: return isRunning && isFileDialog();
        case Kind::vainClick: return isRunning && box != Box::none;
        case Kind::chooseRow:
        case Kind::chooseOption:
        case Kind::insertToken:
        case Kind::typeFormat:
        case Kind::closeDialog: return isRunning && isPossibleInDialog(action);
        default: return isRunning && box == Box::none && isPossibleInMain(action);
    }
}

bool Model::isPossibleInDialog(const Action& action) const {
    switch (action.kind) {
        case Kind::chooseRow:
        case Kind::chooseOption: return box == Box::options;
        case Kind::insertToken:
        case Kind::typeFormat: return box == Box::format;
        default:
            // The about box has no button of that kind to its two keys.
            return box == Box::options || box == Box::format || (box == Box::about && action.which == 0);
    }
}

bool Model::isFileDialog() const { return box == Box::save || box == Box::open || box == Box::notepad; }

bool Model::isButton(int button) const {
    const bool isReportQuestion =
        box == Box::report && !facts->offeredName(current(), marks.names.at(selected)).empty();
    if (box == Box::question) return button == 2 || button == 6 || button == 7;
    if (box == Box::overwrite || isReportQuestion) return button == 6 || button == 7;
    return boxLook().kind == BoxKind::message && button == 1;
}

bool Model::isPossibleInMain(const Action& action) const {
    const bool isByMouse = action.which == 1;
    switch (action.kind) {
        case Kind::sliderKeys:
        case Kind::barKeys:
        case Kind::openAbout:
        case Kind::savePaletteAs:
        case Kind::close: return front == Front::main;
        case Kind::notationKeys: {
            const int row = notation + action.value;
            return front == Front::main && !areNamesCopied && row >= 0 && row < 12 && row != notation;
        }
        case Kind::copyColor:
        case Kind::findNames:
        case Kind::properties:
        case Kind::openOptions:
        case Kind::openFormat:
        case Kind::help:
        case Kind::newPalette:
        case Kind::savePalette: return isByMouse || front == Front::main;
        case Kind::pasteColor: return isByMouse || (front == Front::main && (action.which == 0 || copied));
        case Kind::openPalette:
        case Kind::openInNotepad:
            return isByMouse || (front == Front::main && (action.which == 0 || !isPickMode));
        case Kind::pickDrag: return isPickMode && front == Front::main;
        case Kind::swatch: return pickers.at(action.which) && swatchColor(action.which, action.value);
        case Kind::swatchKeys:
            return front == static_cast<Front>(action.which) && swatchColor(action.which, action.value) &&
                   swatchColor(action.which, SwatchRightOf(action.which, action.value));
        case Kind::tabs: {
            const std::vector<int> stops = tabStops();
            // A frame would lie on the bar while it has the focus.
            return front == Front::main && stops.at(action.value % stops.size()) != IDC_lblColorBar;
        }
        case Kind::rightSwatch:
        case Kind::closePicker: return pickers.at(action.which);
        case Kind::sortOrder: return pickers[2];
        case Kind::comeBack: return front != Front::main;
        case Kind::otherCopies: return clip.state == ClipboardFact::State::known && !clip.isHeld;
        case Kind::settle: return clip.state == ClipboardFact::State::due && !clip.isHeld;
        default: return true;
    }
}

Actions Possible(const Actions& actions, const Facts& facts) {
    Model model(facts);
    Actions possible;
    for (const Action& action : actions) {
        if (!model.isPossible(action)) continue;
        model.play(action);
        possible.push_back(action);
    }
    return possible;
}

StoredSettings SettingsOf(int variant) {
    switch (variant) {
        case 0: return {"", 0, 0, 1};
        case 1: return {"%DR%/%UG%-%LB% & %LD%", 11, 1, 1};
        case 2: return {"%%UR%%", 3, 0, 0};
        default: return {"colour: #%LR%%LG%%LB%;", 10, 1, 1};
    }
}

Files FilesAtStart() {
    SixMarks some;
    some.names = {"navy", "Sea, and [sky]", "", "aliceblue", "Navy", notJavaScript};
    some.colors = {ColorOf(0, 0, 128),     ColorOf(0, 128, 255), ColorOf(51, 51, 51),
                   ColorOf(240, 248, 255), ColorOf(0, 255, 255), ColorOf(1, 1, 1)};
    SixMarks greys;
    greys.names.fill("grey");
    for (int mark = 0; mark < 6; ++mark) greys.colors.at(mark) = ColorOf(mark * 50, mark * 50, mark * 50);
    std::string manyLines = PaletteText(greys, "");
    for (int line = 100; line < 1001; ++line) manyLines += "more\r\n";

    const std::string path = std::string(filesFolder) + '\\';
    return {{path + "some.txt", {PaletteText(some, ""), false, some}},
            {path + "old.txt", {OldPaletteText(greys), false, greys}},
            {path + "long.txt", {manyLines, false, greys, true}},
            {path + "letter.txt", {"Dear Sir or Madam\r\n"}},
            {path + "locked.txt", {PaletteText(greys, ""), true, greys}},
            {std::string(secondFolder) + "\\some.txt", {PaletteText(greys, ""), false, greys}}};
}
