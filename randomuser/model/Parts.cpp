#include "randomuser/model/Parts.h"

namespace {

constexpr int cancel = 2;
constexpr int yes = 6;

}  // namespace

void Parts::start(const StoredSettings& found) {
    windows.open();
    dialogs.load(found);
    codeChoice.begin(found.formatIndex);
    fileCommands.start();
}

void Parts::takeSwatch(int picker, int index) {
    windows.comeToPicker(picker);
    editing.setColor(*windows.swatchColor(picker, index));
}

void Parts::takeSwatchBeside(int picker, int index) {
    takeSwatch(picker, index);
    takeSwatch(picker, SwatchRightOf(picker, index));
}

void Parts::pressCell(int cell) {
    windows.pressCell(cell);
    editing.select(cell / 6);
}

void Parts::pressCellBeside() {
    const int cell = windows.framedCell();
    pressCell(cell % 6 == 5 ? cell : cell + 1);
}

std::string Parts::contrast() const {
    if (!windows.isPickerOpen(static_cast<int>(Front::contrast))) return "";
    const SixMarks& six = marks.all();
    const int row = windows.framedCell() / 6;
    const int column = windows.framedCell() % 6;
    const std::string label = LabelOf(six.names.at(row), six.colors.at(row));
    const std::string hex = CodeOf(0, six.colors.at(row), "");
    if (row == column) return label == hex ? hex : label + ' ' + hex;
    return ContrastOf(six.names.at(row), six.colors.at(row), six.names.at(column), six.colors.at(column));
}

void Parts::openPalette() {
    if (!pick.isOn()) fileCommands.begin(FileCommand::open);
}

void Parts::openInNotepad() {
    if (!pick.isOn()) box.show(Box::Kind::notepad);
}

void Parts::drop(const std::string& path) {
    if (pick.isOn() || box.isOpen()) return;
    windows.comeToMain();
    fileCommands.drop(path);
}

void Parts::settle() {
    clipboard.put(preview());
    marks.refreshLetters();
    steps.end();
}

void Parts::undo() {
    if (!steps.canUndo()) return;
    marks.restore(steps.undo());
    editing.applyAgain();
}

void Parts::redo() {
    marks.restore(steps.redo());
    editing.applyAgain();
}

void Parts::showReport() {
    const std::string& name = marks.currentName();
    const bool isOffer = !facts.offeredName(marks.current(), name).empty();
    box.show(isOffer ? Box::Kind::offer : Box::Kind::report, facts.report(marks.current(), name));
}

void Parts::answer(int button) {
    switch (box.close()) {
        case Box::Kind::question:
            if (button == yes) return fileCommands.save();
            return button == cancel ? fileCommands.giveUp() : fileCommands.goOn();
        case Box::Kind::refusal: return values.endTyping();
        case Box::Kind::offer:
            if (button == yes) marks.typeName(marks.selectedMark(), facts.nameOf(marks.current()));
            return;
        case Box::Kind::fatal: return windows.end(1);
        case Box::Kind::message: return fileCommands.leaveMessage();
        case Box::Kind::overwrite:
            return button == yes ? fileCommands.saveChosen() : box.show(Box::Kind::save);
        case Box::Kind::report:
        case Box::Kind::none:
        case Box::Kind::save:
        case Box::Kind::open:
        case Box::Kind::notepad:
        case Box::Kind::options:
        case Box::Kind::format:
        case Box::Kind::about: return;
    }
}

Look Parts::look() const {
    Look look;
    windows.tell(look);
    if (!look.isRunning) return {.exitCode = look.exitCode};
    box.tell(look);
    dialogs.tell(look);
    fileCommands.tell(look);
    marks.tell(look);
    values.tell(look);
    codeChoice.tell(look);
    look.contrast = contrast();
    look.preview = preview();
    look.isPickMode = pick.isOn();
    look.isPasteEnabled = editing.hasCopied();
    look.focus = focus;
    return look;
}
