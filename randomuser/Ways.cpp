#include "randomuser/Ways.h"

#include <array>

#include "randomuser/model/EveryKind.h"
#include "resources/resource.h"
#include "tests/driver/Input.h"
#include "tests/driver/UiTest.h"

namespace {

/// It starts the program, and waits for what is copied.
void DoneBySession(const Moment& /*now*/) {}

template <Command command>
void Run(const Moment& now) {
    now.hands.commands.run(command, now.action.which);
}

template <WORD menu, WORD item>
void Choose(const Moment& now) {
    now.hands.commands.chooseFromMenu(menu, item);
}

template <int id>
void ClickOn(const Moment& now) {
    now.hands.reach.clickOn(id);
}

/// What another program does overtakes keys and clicks that are still to come, and such a click then brings
/// its window back to the front.
void LetInputArrive(const Moment& now) {
    if (now.before.front == Front::main) return now.hands.reach.waitForInput();
    now.hands.reach.awaitRest(now.hands.eyes.main());
}

void ClosePicker(const Moment& now) {
    LetInputArrive(now);
    now.hands.pickers.close(now.action.which);
}

void TakeForeground(const Moment& now) {
    LetInputArrive(now);
    now.hands.other.takeForeground();
}

void ChoosePath(const Moment& now) {
    now.hands.boxes.choosePath(now.action.text);
    if (now.before.box.title == "Open Palette In Notepad") now.hands.boxes.closeNotepad();
}

void ShowHelp(const Moment& now) {
    now.hands.commands.run({VK_F1, false, IDM_mnuHelpHelp, 'H', 'H'}, now.action.which);
    now.hands.commands.closeHelp();
}

/// In a box the key would be the box's own.
template <WORD key, WORD item>
void RunFromSlider(const Moment& now) {
    if (now.action.which != 0) return now.hands.commands.chooseFromMenu('E', item);
    now.hands.reach.focusByKey('R', IDC_hsbRed);
    Press(key, {VK_CONTROL});
}

constexpr std::array ways = std::to_array<Way>({
    {Kind::start, DoneBySession},
    {Kind::sliderKeys,
     [](const Moment& now) { now.hands.panels.pressSliderKeys(now.action.which, now.action.value); }},
    {Kind::sliderArrow,
     [](const Moment& now) { now.hands.panels.clickArrow(now.action.which, now.action.value > 0); }},
    {Kind::sliderDrag,
     [](const Moment& now) { now.hands.panels.dragSlider(now.action.which, now.action.value); }},
    {Kind::barClick, [](const Moment& now) { now.hands.panels.clickBar(now.action.value); }},
    {Kind::selectMark, [](const Moment& now) { now.hands.reach.clickOn(IDC_optColor + now.action.which); }},
    {Kind::markKeys,
     [](const Moment& now) { now.hands.panels.pressMarkKeys(now.before.selected, now.action.value); }},
    {Kind::typeValue,
     [](const Moment& now) { now.hands.panels.retype(IDC_txtSetRed + now.action.which, now.action.text); }},
    {Kind::enterValue,
     [](const Moment& now) { now.hands.panels.pressIn(IDC_txtSetRed + now.action.which, VK_RETURN); }},
    {Kind::pressSet, ClickOn<IDC_cmdSetColor>},
    {Kind::setMode,
     [](const Moment& now) {
         now.hands.reach.clickOn(now.action.value == 0 ? IDC_optSetDec : IDC_optSetHex);
     }},
    {Kind::typeName,
     [](const Moment& now) { now.hands.panels.retype(IDC_txtName + now.action.which, now.action.text); }},
    {Kind::eraseName, [](const Moment& now) { now.hands.panels.eraseIn(IDC_txtName + now.action.which); }},
    {Kind::copyColor, Run<Command{VK_F2, false, IDM_mnuEditCopyColor, 'E', 'C'}>},
    {Kind::pasteColor, Run<Command{VK_F3, false, IDM_mnuEditPasteColor, 'E', 'P'}>},
    {Kind::findNames, Run<Command{VK_F5, false, IDM_mnuEditFind, 'E', 'F'}>},
    {Kind::properties, Run<Command{VK_F4, false, IDM_mnuHelpColorProperties, 'H', 'C'}>},
    {Kind::notation, [](const Moment& now) { now.hands.panels.clickNotation(now.action.value); }},
    {Kind::notationKeys, [](const Moment& now) { now.hands.panels.pressNotationKeys(now.action.value); }},
    {Kind::jsNames, ClickOn<IDC_chkJSNamesOnly>},
    {Kind::pickMode, ClickOn<IDC_chkColorPick>},
    {Kind::pickDrag, [](const Moment& now) { now.hands.picks.drag(now.action, now.before); }},
    {Kind::pickRight, [](const Moment& now) { now.hands.picks.clickRight(now.before.selected); }},
    {Kind::openPicker, [](const Moment& now) { now.hands.pickers.open(now.action.which); }},
    {Kind::swatch,
     [](const Moment& now) { now.hands.pickers.clickSwatch(now.action.which, now.action.value); }},
    {Kind::rightSwatch,
     [](const Moment& now) { now.hands.pickers.rightClickSwatch(now.action.which, now.action.value); }},
    {Kind::sortOrder, [](const Moment& now) { now.hands.pickers.sort(now.action.value != 0); }},
    {Kind::closePicker, ClosePicker},
    {Kind::comeBack, [](const Moment& now) { now.hands.reach.clickAt(now.hands.eyes.emptyPlace()); }},
    {Kind::otherInFront, TakeForeground},
    {Kind::otherCopies, [](const Moment& now) { CopyElsewhere(now.action.text); }},
    {Kind::otherHolds, [](const Moment& now) { now.hands.other.holdClipboard(); }},
    {Kind::otherLetsGo, [](const Moment& now) { now.hands.other.letGo(); }},
    {Kind::settle, DoneBySession},
    {Kind::newPalette, Run<Command{'N', true, IDM_mnuFileNew, 'F', 'N'}>},
    {Kind::openPalette, Run<Command{'O', true, IDM_mnuFileOpen, 'F', 'O'}>},
    {Kind::openInNotepad, Run<Command{'I', true, IDM_mnuFileOpenInNotepad, 'F', 'I'}>},
    {Kind::savePalette, Run<Command{'S', true, IDM_mnuFileSave, 'F', 'S'}>},
    {Kind::savePaletteAs, Choose<'F', 'A'>},
    {Kind::close, [](const Moment& now) { now.hands.commands.closeMain(now.action.which); }},
    {Kind::answer,
     [](const Moment& now) { now.hands.boxes.answer(now.action.value, now.action.which == 2); }},
    {Kind::choosePath, ChoosePath},
    {Kind::cancelDialog, [](const Moment& /*now*/) { Press(VK_ESCAPE); }},
    {Kind::vainClick, [](const Moment& now) { now.hands.boxes.clickInVain(now.action.value); }},
    {Kind::barKeys,
     [](const Moment& now) {
         now.hands.panels.pressBarKeys(now.before.selected, now.action.which == 0, now.action.value);
     }},
    {Kind::swatchKeys,
     [](const Moment& now) { now.hands.pickers.pressSwatchBeside(now.action.which, now.action.value); }},
    {Kind::tabs, [](const Moment& now) { now.hands.panels.tab(now.action.value); }},
    {Kind::openOptions, Run<Command{VK_F9, false, IDM_mnuToolsOptions, 'T', 'O'}>},
    {Kind::chooseRow, [](const Moment& now) { now.hands.boxes.chooseRow(now.action.value); }},
    {Kind::chooseOption, [](const Moment& now) { now.hands.boxes.chooseOption(now.action.value); }},
    {Kind::openFormat, Run<Command{VK_F8, false, IDM_mnuToolsCustomFormat, 'T', 'C'}>},
    {Kind::insertToken, [](const Moment& now) { now.hands.boxes.insertToken(now.action.value); }},
    {Kind::typeFormat, [](const Moment& now) { now.hands.boxes.typeFormat(now.action.text); }},
    {Kind::openAbout, Choose<'H', 'A'>},
    {Kind::closeDialog,
     [](const Moment& now) { now.hands.boxes.close(now.action.value == 1, now.action.which == 1); }},
    {Kind::help, ShowHelp},
    {Kind::openContrast,
     [](const Moment& now) {
         now.hands.commands.run({VK_F7, false, 0, 'T', 'N'}, now.action.which == 0 ? 0 : 2);
         now.hands.pickers.placeContrast(now.before.pickers.at(3));
     }},
    {Kind::pressCell,
     [](const Moment& now) { now.hands.pickers.clickCell(now.action.value, now.action.which == 0); }},
    {Kind::cellKeys,
     [](const Moment& now) {
         now.hands.reach.bring(Front::contrast);
         Press(VK_RIGHT);
         Press(now.action.which == 0 ? VK_SPACE : VK_RETURN);
     }},
    {Kind::pickByKeys, [](const Moment& now) { now.hands.picks.pickByKeys(now.action, now.before); }},
    {Kind::pickInVain, [](const Moment& now) { now.hands.picks.dragInVain(now.action, now.before); }},
    {Kind::undo, RunFromSlider<'Z', 'U'>},
    {Kind::redo, RunFromSlider<'Y', 'R'>},
    {Kind::dropFile, [](const Moment& now) { now.hands.drops.drop(now.action.text, now.action.which); }},
    {Kind::keepOnTop,
     [](const Moment& now) { now.hands.systemMenu.switchOnTop(now.action.which == 0, now.before.isOnTop); }},
});
static_assert(HasEveryKind<ways>(), "the ways stand in the order of Kind");

}  // namespace

const Way& WayOf(Kind kind) { return ways.at(static_cast<std::size_t>(kind)); }
