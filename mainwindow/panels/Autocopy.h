// What is on its way to the clipboard?
#pragma once

#include <optional>
#include <string>

#include "core/Color.h"
#include "mainwindow/panels/ChannelEditors.h"
#include "mainwindow/panels/ClipTicks.h"
#include "mainwindow/panels/ColorMarks.h"
#include "mainwindow/panels/CommandBar.h"
#include "mainwindow/panels/EditState.h"
#include "support/AppState.h"
#include "toolkit/controls/Buttons.h"
#include "toolkit/controls/Label.h"
#include "toolkit/controls/ListBox.h"
#include "toolkit/forms/Event.h"
#include "toolkit/forms/Timer.h"

/// The notation list, the preview and the timer that copies it; and the copy and paste of a whole colour,
/// which has nothing to do with the system clipboard.
class Autocopy {
public:
    Autocopy(Form& form, AppState& state, EditState& edit, CommandBar& commands, ChannelEditors& channels,
             ColorMarks& marks, ColorTarget& target);

    Event<> Rest;  ///< nothing has changed the preview for three ticks

    /// At load: fills the list.
    void FillNotations();
    /// At load, and when a colour has been copied: without one there is nothing to paste.
    void EnablePaste();

    /// Writes the preview; the clipboard follows on the third tick from here.
    void ShowColorCode(const Color& color);

    /// The colour in the chosen notation; while names are copied, in the one that was chosen before.
    std::string CodeOf(const Color& color) const;

    /// The notation is kept when the window is deactivated, and restored when it is activated.
    void RestoreNotation();
    void KeepNotation();

private:
    void lstAutocopy_Click();
    void chkJSNamesOnly_Click();
    void tmrClip_Tick();
    void mnuEditCopyColor_Click();
    void mnuEditPasteColor_Click();

    void ShowNotation(const Color& color);
    void CopyPreviewToClipboard();

    Form& form;
    AppState& state;
    EditState& edit;
    CommandBar& commands;
    ChannelEditors& channels;
    ColorMarks& marks;
    ColorTarget& target;

    ListBox lstAutocopy;
    CheckBox chkJSNamesOnly;
    Label lblClipboard;
    Timer tmrClip;
    ClipTicks clipTicks;
    std::optional<Color> copiedColor;
    unsigned turns = 0;
};
