// How does the user take back what was done to the marks?
#pragma once

#include "mainwindow/panels/ChannelEditors.h"
#include "mainwindow/panels/ColorMarks.h"
#include "mainwindow/panels/ColorTarget.h"
#include "mainwindow/panels/CommandBar.h"
#include "mainwindow/panels/EditState.h"
#include "mainwindow/panels/History.h"

/// The commands Undo and Redo, and what makes changes of the marks one step.
class UndoCommands {
public:
    UndoCommands(EditState& edit, CommandBar& commands, ChannelEditors& channels, ColorMarks& marks,
                 ColorTarget& target);

    /// Another palette is shown: there is nothing to take back.
    void Begin();
    /// A mark may have changed.
    void Note();
    /// The hand rests: further changes of the colour are another step.
    void EndColoring();
    /// The name box is left.
    void EndTyping();
    void EndStep();

private:
    void mnuEditUndo_Click();
    void mnuEditRedo_Click();

    Gesture CurrentGesture() const;
    bool IsBusy() const;
    void Show(const MarkState& wanted);
    void EnableCommands();

    EditState& edit;
    CommandBar& commands;
    ChannelEditors& channels;
    ColorMarks& marks;
    ColorTarget& target;

    History history;
    bool isRestoring = false;
};
