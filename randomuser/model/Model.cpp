#include "randomuser/model/Model.h"

#include <algorithm>

#include "randomuser/model/Focus.h"
#include "resources/resource.h"

void Model::play(const Action& action) {
    if (action.kind == Kind::start) parts = std::make_unique<Parts>(facts);
    parts->focus = 0;
    playOutside(action);
    playEditing(action);
    playKeys(action);
    playFiles(action);
    playDialogs(action);
}

void Model::playEditing(const Action& action) {
    Editing& editing = parts->editing;
    switch (action.kind) {
        case Kind::sliderKeys:
            for (int times = action.value / 8; times > 0; --times)
                editing.pressSliderKey(action.which, static_cast<SliderKey>(action.value % 8));
            break;
        case Kind::sliderArrow: editing.stepSlider(action.which, action.value); break;
        case Kind::sliderDrag: editing.moveSlider(action.which, action.value); break;
        case Kind::barClick: editing.setColor(BarColor(current(), action.value)); break;
        case Kind::selectMark: editing.select(action.which); break;
        case Kind::markKeys: editing.selectBeside(action.value); break;
        case Kind::typeValue: parts->values.type(action.which, action.text); break;
        case Kind::enterValue: editing.applyValues(); break;
        case Kind::pressSet:
            if (parts->values.canSet()) editing.applyValues();
            break;
        case Kind::setMode: editing.setMode(action.value == 0); break;
        case Kind::typeName: parts->marks.typeName(action.which, action.text.substr(0, 21)); break;
        case Kind::eraseName: parts->marks.eraseCharacter(action.which); break;
        case Kind::copyColor: editing.copy(); break;
        case Kind::pasteColor: editing.paste(); break;
        case Kind::findNames: parts->marks.findNames(); break;
        case Kind::notation: parts->codeChoice.choose(action.value); break;
        case Kind::notationKeys: parts->codeChoice.move(action.value); break;
        case Kind::jsNames: parts->codeChoice.switchNames(); break;
        case Kind::pickMode: parts->pick.switchMode(); break;
        case Kind::pickDrag: parts->pick.drag(action); break;
        case Kind::pickRight: parts->pick.release(); break;
        case Kind::swatch: editing.setColor(*parts->windows.swatchColor(action.which, action.value)); break;
        case Kind::sortOrder: parts->windows.sort(action.value != 0); break;
        default: break;
    }
}

/// Which window is in front, and what other programs do.
void Model::playOutside(const Action& action) {
    Windows& windows = parts->windows;
    const bool isInPicker = action.kind == Kind::swatch || action.kind == Kind::rightSwatch ||
                            action.kind == Kind::swatchKeys || action.kind == Kind::sortOrder;
    switch (action.kind) {
        case Kind::otherInFront: return windows.comeTo(Front::other);
        case Kind::otherCopies: return parts->clipboard.put(action.text);
        case Kind::otherHolds: parts->clipboard.isHeld = true; return;
        case Kind::otherLetsGo: return parts->clipboard.letGo();
        case Kind::settle: parts->clipboard.put(parts->preview()); return parts->marks.refreshLetters();
        case Kind::vainClick: return;
        default: break;
    }
    if (isInPicker) return windows.comeToPicker(action.kind == Kind::sortOrder ? 2 : action.which);
    windows.comeToMain();
    if (action.kind == Kind::closePicker) windows.closePicker(action.which);
    if (action.kind == Kind::openPicker)
        windows.openPicker(action.which, parts->dialogs.inUse().sortIndex == 1);
}

void Model::playKeys(const Action& action) {
    Editing& editing = parts->editing;
    const Windows& windows = parts->windows;
    switch (action.kind) {
        case Kind::barKeys:
            editing.setColor(BarColor(current(), action.which == 0 ? action.value : 255 - action.value));
            break;
        case Kind::swatchKeys:
            editing.setColor(*windows.swatchColor(action.which, action.value));
            editing.setColor(*windows.swatchColor(action.which, SwatchRightOf(action.which, action.value)));
            break;
        case Kind::tabs: parts->focus = StopAfter(look(), action.value); break;
        default: break;
    }
}

void Model::playFiles(const Action& action) {
    FileCommands& commands = parts->fileCommands;
    switch (action.kind) {
        case Kind::start: return parts->start(SettingsOf(action.value));
        case Kind::properties: return parts->showReport();
        case Kind::newPalette: return commands.begin(FileCommand::newPalette);
        case Kind::openPalette:
            if (!parts->pick.isOn()) commands.begin(FileCommand::open);
            return;
        case Kind::openInNotepad:
            if (!parts->pick.isOn()) parts->box.show(Box::Kind::notepad);
            return;
        case Kind::savePalette: return commands.save();
        case Kind::savePaletteAs: return parts->box.show(Box::Kind::save);
        case Kind::close: return commands.begin(FileCommand::close);
        case Kind::answer: return parts->answer(action.value);
        case Kind::choosePath: return commands.choosePath(action.text);
        case Kind::cancelDialog: return commands.cancelDialog();
        default: return;
    }
}

void Model::playDialogs(const Action& action) {
    Dialogs& dialogs = parts->dialogs;
    switch (action.kind) {
        case Kind::openOptions: return dialogs.openOptions();
        case Kind::openFormat: return dialogs.openFormat();
        case Kind::openAbout: return dialogs.openAbout();
        case Kind::chooseRow: return dialogs.chooseRow(action.value);
        case Kind::chooseOption: return dialogs.chooseOption(action.value);
        case Kind::typeFormat: return dialogs.typeFormat(action.text);
        case Kind::insertToken: return dialogs.insertToken(action.value);
        case Kind::closeDialog: return dialogs.close(action.value == 1);
        default: return;
    }
}

bool Model::isPossible(const Action& action) const {
    switch (action.kind) {
        case Kind::start: return !parts->windows.areOpen();
        case Kind::otherHolds: return parts->windows.areOpen() && !clipboard().isHeld;
        case Kind::otherLetsGo: return parts->windows.areOpen() && clipboard().isHeld;
        case Kind::answer: return parts->windows.areOpen() && parts->box.hasButton(action.value);
        case Kind::choosePath:
            // Notepad would ask whether to make a file that is missing.
            return parts->windows.areOpen() && parts->box.isFileDialog() &&
                   (!parts->box.is(Box::Kind::notepad) || files().contains(action.text));
        case Kind::cancelDialog: return parts->windows.areOpen() && parts->box.isFileDialog();
        case Kind::vainClick: return parts->windows.areOpen() && parts->box.isOpen();
        case Kind::chooseRow:
        case Kind::chooseOption:
        case Kind::insertToken:
        case Kind::typeFormat:
        case Kind::closeDialog: return parts->windows.areOpen() && isPossibleInDialog(action);
        default: return parts->windows.areOpen() && !parts->box.isOpen() && isPossibleInMain(action);
    }
}

bool Model::isPossibleInDialog(const Action& action) const {
    switch (action.kind) {
        case Kind::chooseRow:
        case Kind::chooseOption: return parts->box.is(Box::Kind::options);
        case Kind::insertToken:
        case Kind::typeFormat: return parts->box.is(Box::Kind::format);
        default:
            // The about box has no button of that kind to its two keys.
            return parts->box.is(Box::Kind::options) || parts->box.is(Box::Kind::format) ||
                   (parts->box.is(Box::Kind::about) && action.which == 0);
    }
}

bool Model::isPossibleInMain(const Action& action) const {
    const bool isByMouse = action.which == 1;
    switch (action.kind) {
        case Kind::sliderKeys:
        case Kind::barKeys:
        case Kind::openAbout:
        case Kind::savePaletteAs:
        case Kind::close: return parts->windows.isInFront(Front::main);
        case Kind::notationKeys: {
            return parts->windows.isInFront(Front::main) && parts->codeChoice.canMove(action.value);
        }
        case Kind::copyColor:
        case Kind::findNames:
        case Kind::properties:
        case Kind::openOptions:
        case Kind::openFormat:
        case Kind::help:
        case Kind::newPalette:
        case Kind::savePalette: return isByMouse || parts->windows.isInFront(Front::main);
        case Kind::pasteColor:
            return isByMouse || (parts->windows.isInFront(Front::main) &&
                                 (action.which == 0 || parts->editing.hasCopied()));
        case Kind::openPalette:
        case Kind::openInNotepad:
            return isByMouse ||
                   (parts->windows.isInFront(Front::main) && (action.which == 0 || !parts->pick.isOn()));
        case Kind::pickDrag: return parts->pick.isOn() && parts->windows.isInFront(Front::main);
        case Kind::swatch:
            return parts->windows.isPickerOpen(action.which) &&
                   parts->windows.swatchColor(action.which, action.value);
        case Kind::swatchKeys:
            return parts->windows.isInFront(static_cast<Front>(action.which)) &&
                   parts->windows.swatchColor(action.which, action.value) &&
                   parts->windows.swatchColor(action.which, SwatchRightOf(action.which, action.value));
        case Kind::tabs: {
            // A frame would lie on the bar while it has the focus.
            return parts->windows.isInFront(Front::main) &&
                   StopAfter(look(), action.value) != IDC_lblColorBar;
        }
        case Kind::rightSwatch:
        case Kind::closePicker: return parts->windows.isPickerOpen(action.which);
        case Kind::sortOrder: return parts->windows.isPickerOpen(2);
        case Kind::comeBack: return !parts->windows.isInFront(Front::main);
        case Kind::otherCopies:
            return clipboard().state == ClipboardFact::State::known && !clipboard().isHeld;
        case Kind::settle: return clipboard().state == ClipboardFact::State::due && !clipboard().isHeld;
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
