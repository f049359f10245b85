#include "mainwindow/panels/Autocopy.h"

#include "core/ColorCode.h"
#include "core/ColorTables.h"
#include "mainwindow/panels/Turn.h"
#include "resources/resource.h"
#include "support/Messages.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/platform/Clipboard.h"
#include "toolkit/platform/FlagGuard.h"

namespace {

constexpr UINT tickMilliseconds = 200;

}  // namespace

Autocopy::Autocopy(Form& form, AppState& state, EditState& edit, CommandBar& commands,
                   ChannelEditors& channels, ColorMarks& marks, ColorTarget& target)
    : form(form),
      state(state),
      edit(edit),
      commands(commands),
      channels(channels),
      marks(marks),
      target(target),
      lstAutocopy(form, IDC_lstAutocopy),
      chkJSNamesOnly(form, IDC_chkJSNamesOnly),
      lblClipboard(form, IDC_lblClipboard),
      tmrClip(form, IDC_tmrClip, tickMilliseconds) {
    lstAutocopy.Click.bind(this, &Autocopy::lstAutocopy_Click);
    chkJSNamesOnly.Click.bind(this, &Autocopy::chkJSNamesOnly_Click);
    tmrClip.Tick.bind(this, &Autocopy::tmrClip_Tick);
    commands.bind(IDM_mnuEditCopyColor, this, &Autocopy::mnuEditCopyColor_Click);
    commands.bind(IDM_mnuEditPasteColor, this, &Autocopy::mnuEditPasteColor_Click);
    lstAutocopy.setToolTip(messages::notationTip);
    chkJSNamesOnly.setToolTip(messages::jsNamesTip);
    lblClipboard.lookLikeField();
    lblClipboard.setToolTip(messages::previewTip);
}

void Autocopy::FillNotations() {
    for (const Notation& notation : notations) lstAutocopy.addItem(notation.caption);
}

void Autocopy::EnablePaste() {
    const bool isEnabled = copiedColor.has_value();
    commands.SetEnabled(IDM_mnuEditPasteColor, isEnabled);
    commands.SetTip(IDM_mnuEditPasteColor,
                    isEnabled ? messages::pasteEnabledTip : messages::pasteDisabledTip);
}

void Autocopy::ShowColorCode(const Color& color) {
    const Turn turn(turns);
    if (state.jsNamesOnly) {
        lblClipboard.setText(JavaScriptName(color));
    } else {
        Yield();
        if (turn.isOvertaken()) return;
        ShowNotation(color);
    }
    clipTicks.reset();
}

void Autocopy::ShowNotation(const Color& color) {
    const auto code = ColorCode(lstAutocopy.index(), color, state.settings.customFormat);
    if (code) lblClipboard.setText(*code);
}

std::string Autocopy::CodeOf(const Color& color) const {
    const int notation = state.jsNamesOnly ? state.savedFormatIndex : lstAutocopy.index();
    return ColorCode(notation, color, state.settings.customFormat).value_or("");
}

void Autocopy::RestoreNotation() {
    if (!state.jsNamesOnly) lstAutocopy.setIndex(state.savedFormatIndex);
    ShowColorCode(channels.SliderColor());
}

void Autocopy::KeepNotation() {
    // Without a selected notation there is nothing to come back to.
    if (!state.jsNamesOnly && lstAutocopy.index() >= 0) state.savedFormatIndex = lstAutocopy.index();
}

void Autocopy::lstAutocopy_Click() {
    const Cleared notAnEdit(edit.userColorChange);
    target.SetSelectedColor(channels.SliderColor());
}

void Autocopy::chkJSNamesOnly_Click() {
    Yield();
    if (chkJSNamesOnly.value()) {
        state.jsNamesOnly = true;
        state.savedFormatIndex = lstAutocopy.index();
        lstAutocopy.setIndex(-1);
        lstAutocopy.setEnabled(false);
    } else {
        state.jsNamesOnly = false;
        lstAutocopy.setEnabled(true);
        lstAutocopy.setIndex(state.savedFormatIndex);
    }
    const Color color = state.marks.selectedColor();
    ShowColorCode(color);
}

void Autocopy::tmrClip_Tick() {
    if (!clipTicks.count()) return;
    Rest.raise();
    marks.RefreshProperties();
    Yield();
    CopyPreviewToClipboard();
}

void Autocopy::CopyPreviewToClipboard() { PutTextOnClipboard(form.handle(), lblClipboard.text()); }

void Autocopy::mnuEditCopyColor_Click() {
    copiedColor = state.marks.selectedColor();
    EnablePaste();
}

void Autocopy::mnuEditPasteColor_Click() {
    if (copiedColor) channels.SetSliders(*copiedColor);
}
