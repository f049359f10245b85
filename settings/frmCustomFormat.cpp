#include "settings/frmCustomFormat.h"

#include <array>
#include <utility>

#include "help/HelpTopic.h"
#include "resources/resource.h"
#include "settings/LoadSettings.h"
#include "settings/SettingsRules.h"
#include "settings/TokenInsertion.h"
#include "support/Messages.h"

namespace {

struct Token {
    const char* placeholder;
    const char* tip;
};

/// In the order of their buttons' numbers.
constexpr std::array<Token, 10> tokens = {{
    {"%UR%", messages::upperRedTip},
    {"%UG%", messages::upperGreenTip},
    {"%UB%", messages::upperBlueTip},
    {"%LR%", messages::lowerRedTip},
    {"%LG%", messages::lowerGreenTip},
    {"%LB%", messages::lowerBlueTip},
    {"%DR%", messages::decimalRedTip},
    {"%DG%", messages::decimalGreenTip},
    {"%DB%", messages::decimalBlueTip},
    {"%LD%", messages::longDecimalTip},
}};

}  // namespace

frmCustomFormat::frmCustomFormat(AppState& state, const RegistryStringHandler& registry, HTMLHelp& help)
    : Form("frmCustomFormat"),
      state(state),
      registry(registry),
      help(help),
      txtFormat(*this, IDC_txtFormat),
      cmdToken(*this, IDC_cmdUR),
      cmdOK(*this, IDC_cmdOK),
      cmdCancel(*this, IDC_cmdCancel),
      cmdHelp(*this, IDC_cmdHelp) {
    Load.bind(this, &frmCustomFormat::Form_Load);
    Activate.bind(this, &frmCustomFormat::Form_Activate);
    cmdToken.bind(&Button::Click, this, &frmCustomFormat::cmdToken_Click);
    cmdOK.Click.bind(this, &frmCustomFormat::cmdOK_Click);
    cmdCancel.Click.bind(this, &frmCustomFormat::cmdCancel_Click);
    cmdHelp.Click.bind(this, &frmCustomFormat::cmdHelp_Click);
    for (int index = 0; index < tokenCount; ++index) cmdToken(index).setToolTip(tokens[index].tip);
}

void frmCustomFormat::Form_Load() {
    const int notation = state.savedFormatIndex;
    LoadSettings(state, registry, *this);
    // What is stored is for the next start; the main window's list stays as it is.
    if (!state.jsNamesOnly) state.savedFormatIndex = notation;
    txtFormat.setMaxLength(customFormatLimit);
    txtFormat.setText(state.settings.customFormat);
    isOpening = true;
}

void frmCustomFormat::Form_Activate() {
    // Only now: Windows selects the whole text when it gives a box the focus.
    if (std::exchange(isOpening, false)) txtFormat.setCaretToEnd();
}

void frmCustomFormat::cmdToken_Click(int index) { InsertToken(tokens[index].placeholder); }

void frmCustomFormat::InsertToken(const char* token) {
    const Selection selected = txtFormat.selection();
    const auto inserted =
        InsertedToken(txtFormat.text(), selected.start, selected.end - selected.start, token);
    txtFormat.setFocus();
    if (inserted) txtFormat.setText(inserted->text);
    txtFormat.setSelection(inserted ? Selection{inserted->caret, inserted->caret} : selected);
}

void frmCustomFormat::cmdOK_Click() {
    state.settings.customFormat = txtFormat.text();
    StoreSetting(registry, value_names::customFormat, state.settings.customFormat);
    // Last, because the main window shows the template again while this one closes.
    unload();
}

void frmCustomFormat::cmdCancel_Click() { unload(); }

void frmCustomFormat::cmdHelp_Click() { ShowHelpTopic(help, customFormatTopic, *this); }
