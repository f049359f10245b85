#include "mainwindow/frmMain.h"

#include "mainwindow/panels/Turn.h"
#include "resources/resource.h"
#include "settings/LoadSettings.h"
#include "support/FatalError.h"
#include "support/Messages.h"
#include "toolkit/forms/MsgBox.h"
#include "toolkit/platform/FlagGuard.h"
#include "toolkit/platform/Redraw.h"

frmMain::frmMain(AppState& state)
    : Form("frmMain"),
      state(state),
      commands(*this),
      channels(*this, edit, *this),
      marks(*this, state.marks, edit, channels, *this),
      properties(*this, state, edit, commands, marks),
      colorBar(*this, channels),
      undo(edit, commands, channels, marks, *this),
      autocopy(*this, state, edit, commands, channels, marks, *this),
      palettes(*this, state, edit, commands, channels, marks, *this),
      screenPick(*this, commands, channels, marks, autocopy),
      pickers(*this, state.settings, commands, channels, marks),
      alwaysOnTop(*this, commands),
      helpCommands(*this, commands, help),
      customFormat(state, registry, help),
      options(state, registry) {
    Load.bind(this, &frmMain::Form_Load);
    Activate.bind(this, &frmMain::Form_Activate);
    Deactivate.bind(this, &frmMain::Form_Deactivate);
    QueryUnload.bind(this, &frmMain::Form_QueryUnload);
    Unload.bind(this, &frmMain::Form_Unload);
    marks.Change.bind(this, &frmMain::marks_Change);
    marks.NameLeft.bind(&undo, &UndoCommands::EndTyping);
    autocopy.Rest.bind(&undo, &UndoCommands::EndColoring);
    palettes.Shown.bind(&undo, &UndoCommands::Begin);
    palettes.Saved.bind(&undo, &UndoCommands::EndStep);
    commands.bind(IDM_mnuFileExit, this, &frmMain::mnuFileExit_Click);
    commands.bind(IDM_mnuToolsCustomFormat, this, &frmMain::mnuToolsCustomFormat_Click);
    commands.bind(IDM_mnuToolsOptions, this, &frmMain::mnuToolsOptions_Click);
}

void frmMain::Form_Load() {
    CheckColorDepth();
    ArmErrorTrap();
    LoadSettings(state, registry, *this);
    autocopy.FillNotations();
    {
        const RedrawFrozen frozen(handle());
        commands.Prepare();
        alwaysOnTop.Prepare();
        screenPick.Prepare();
        channels.Prepare();
        marks.Prepare();
        palettes.ShowNewPalette();
        autocopy.EnablePaste();
    }
    edit.userColorChange = true;
    edit.sliderSync = true;
}

void frmMain::CheckColorDepth() {
    constexpr int goodDepth = 24;
    // Asked for once in a run; Windows takes the context back when the program ends.
    const HDC display = ::CreateICW(L"DISPLAY", L"", L"", nullptr);
    if (!display || ::GetDeviceCaps(display, BITSPIXEL) >= goodDepth) return;
    MsgBox(this, messages::lowColorDepth, MB_OK | MB_ICONINFORMATION, messages::title);
}

void frmMain::Form_Activate() { autocopy.RestoreNotation(); }

void frmMain::Form_Deactivate() {
    screenPick.LeaveFront();
    autocopy.KeepNotation();
}

void frmMain::Form_QueryUnload(bool& isCancelled) {
    if (!IsErrorExitInProgress()) isCancelled = !palettes.MayClose();
}

void frmMain::Form_Unload() {
    unloadAll(this);
    help.HelpClose();
}

void frmMain::mnuFileExit_Click() { unload(); }

void frmMain::mnuToolsCustomFormat_Click() {
    autocopy.KeepNotation();  // before the dialog reads the settings again
    customFormat.showModal(*this);
}

void frmMain::mnuToolsOptions_Click() { options.showModal(*this); }

/// For whoever shows the marks once more, or remembers them.
void frmMain::marks_Change() {
    undo.Note();
    pickers.ShowMarks();
}

void frmMain::SetSelectedColor(int red, int green, int blue) {
    const Turn turn(turns);
    const Raised coloring(edit.colorInProgress);
    const Color color = ColorOf(red, green, blue);
    marks.PaintSelected(color);
    channels.ShowValues(color);
    if (turn.isOvertaken()) return;
    colorBar.Refill(color);
    autocopy.ShowColorCode(color);
    if (turn.isOvertaken()) return;
    marks.HighlightRenamed();
}
