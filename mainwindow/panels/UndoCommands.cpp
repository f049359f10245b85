#include "mainwindow/panels/UndoCommands.h"

#include "resources/resource.h"
#include "toolkit/platform/FlagGuard.h"
#include "toolkit/platform/Platform.h"

UndoCommands::UndoCommands(EditState& edit, CommandBar& commands, ChannelEditors& channels, ColorMarks& marks,
                           ColorTarget& target)
    : edit(edit), commands(commands), channels(channels), marks(marks), target(target) {
    commands.bind(IDM_mnuEditUndo, this, &UndoCommands::mnuEditUndo_Click);
    commands.bind(IDM_mnuEditRedo, this, &UndoCommands::mnuEditRedo_Click);
}

void UndoCommands::Begin() {
    history.begin(marks.State());
    marks.ForgetTyping();
    EnableCommands();
}

void UndoCommands::Note() {
    if (isRestoring) return;
    const bool wasTyping = history.runningGesture() == Gesture::name;
    history.note(marks.State(), CurrentGesture());
    // A name box keeps Ctrl+Z for what was typed into it, but only as long as that is the latest step.
    if (wasTyping && history.runningGesture() != Gesture::name) marks.ForgetTyping();
    EnableCommands();
}

Gesture UndoCommands::CurrentGesture() const {
    if (edit.nameFillInProgress) return Gesture::command;
    return edit.colorInProgress ? Gesture::color : Gesture::name;
}

void UndoCommands::EndColoring() {
    if (history.runningGesture() == Gesture::color) history.end();
}

void UndoCommands::EndTyping() {
    if (history.runningGesture() == Gesture::name) EndStep();
}

void UndoCommands::EndStep() {
    history.end();
    marks.ForgetTyping();
}

void UndoCommands::mnuEditUndo_Click() {
    if (!IsBusy() && history.canUndo()) Show(history.undo());
}

void UndoCommands::mnuEditRedo_Click() {
    if (!IsBusy() && history.canRedo()) Show(history.redo());
}

/// Whether the hand has not let go yet, of a slider or in a pick, or a change lets others in on its way.
bool UndoCommands::IsBusy() const {
    return ::GetCapture() || edit.colorInProgress || edit.nameFillInProgress || isRestoring;
}

void UndoCommands::Show(const MarkState& wanted) {
    {
        const Raised restoring(isRestoring);
        const Cleared notAnEdit(edit.userColorChange);
        const Cleared notApplying(edit.sliderSync);
        marks.Restore(wanted);
        const Color& color = wanted.shown.colors[wanted.selectedMark];
        channels.SetSliders(color);
        target.SetSelectedColor(color);
        marks.EnableSelectedSample();
    }
    // What another program has changed in the meantime is a step too.
    Note();
    marks.ForgetTyping();
}

void UndoCommands::EnableCommands() {
    commands.SetEnabled(IDM_mnuEditUndo, history.canUndo());
    commands.SetEnabled(IDM_mnuEditRedo, history.canRedo());
}
