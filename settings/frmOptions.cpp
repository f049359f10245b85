#include "settings/frmOptions.h"

#include <string_view>
#include <utility>

#include "core/ColorCode.h"
#include "resources/resource.h"
#include "settings/Folders.h"
#include "settings/FormatExample.h"
#include "settings/LoadSettings.h"
#include "settings/SettingsRules.h"
#include "support/Messages.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/forms/MsgBox.h"

frmOptions::frmOptions(AppState& state, const RegistryStringHandler& registry)
    : Form("frmOptions"),
      state(state),
      settings(state.settings),
      registry(registry),
      lstStandardFormat(*this, IDC_lstStandardFormat),
      optYes(*this, IDC_optYes, promptToSave),
      optNo(*this, IDC_optNo, promptToSave),
      cmdChange(*this, IDC_cmdChange),
      lblSelectedStandardFolder(*this, IDC_lblSelectedStandardFolder),
      optAlphabetically(*this, IDC_optAlphabetically, sortOrder),
      optDotNet(*this, IDC_optDotNet, sortOrder),
      lblExample(*this, IDC_lblExample),
      cmdOK(*this, IDC_cmdOK),
      cmdCancel(*this, IDC_cmdCancel) {
    Load.bind(this, &frmOptions::Form_Load);
    Activate.bind(this, &frmOptions::Form_Activate);
    lstStandardFormat.Click.bind(this, &frmOptions::lstStandardFormat_Click);
    cmdChange.Click.bind(this, &frmOptions::cmdChange_Click);
    cmdOK.Click.bind(this, &frmOptions::cmdOK_Click);
    cmdCancel.Click.bind(this, &frmOptions::cmdCancel_Click);
    lstStandardFormat.setToolTip(messages::standardFormatTip);
    optYes.setToolTip(messages::promptTip);
    optNo.setToolTip(messages::noPromptTip);
    cmdChange.setToolTip(messages::changeFolderTip);
    optAlphabetically.setToolTip(messages::alphabeticalOrderTip);
    optDotNet.setToolTip(messages::dotNetOrderTip);
}

void frmOptions::Form_Load() {
    isOpening = true;
    for (const Notation& notation : notations) lstStandardFormat.addItem(notation.caption);
    if (settings.sortIndex == 0) optAlphabetically.turnOn();
    if (settings.sortIndex == 1) optDotNet.turnOn();
    if (settings.promptToSave == 0) optNo.turnOn();
    if (settings.promptToSave == 1) optYes.turnOn();
    FindStandardFolder(state);
    ShowFolder(settings.standardFolder);
}

/// The user's choice stays when the form is activated again, after the folder picker for instance.
void frmOptions::Form_Activate() {
    if (std::exchange(isOpening, false)) lstStandardFormat.setIndex(settings.formatIndex);
    ShowExample();
}

void frmOptions::lstStandardFormat_Click() {
    Yield();
    ShowExample();
}

void frmOptions::cmdChange_Click() {
    const std::string folder = BrowseForFolder(handle());
    if (folder.empty()) return;
    if (IsValidFolder(folder)) {
        ShowFolder(folder);
    } else {
        // The next start would refuse it and put all settings back.
        MsgBox(this, messages::unusableFolder, MB_OK | MB_ICONEXCLAMATION, messages::title);
    }
}

void frmOptions::cmdOK_Click() {
    TakeChoices();
    StoreSettings();
    unload();
}

void frmOptions::cmdCancel_Click() { unload(); }

void frmOptions::ShowExample() {
    const std::string example = FormatExample(lstStandardFormat.index(), settings.customFormat);
    lblExample.setText(DoubledAmpersands(example));
}

/// The label shortens a long path when it paints it; the tip shows it whole.
void frmOptions::ShowFolder(const std::string& folder) {
    lblSelectedStandardFolder.setText(folder);
    lblSelectedStandardFolder.setToolTip(folder);
}

void frmOptions::TakeChoices() {
    if (optAlphabetically.value()) settings.sortIndex = 0;
    if (optDotNet.value()) settings.sortIndex = 1;
    if (optYes.value()) settings.promptToSave = 1;
    if (optNo.value()) settings.promptToSave = 0;
    settings.standardFolder = lblSelectedStandardFolder.text();
}

/// The start-up notation in memory stays what it was at the start.
void frmOptions::StoreSettings() const {
    StoreSetting(registry, value_names::formatIndex, std::to_string(lstStandardFormat.index()));
    StoreSetting(registry, value_names::sortIndex, std::to_string(settings.sortIndex));
    StoreSetting(registry, value_names::promptToSave, std::to_string(settings.promptToSave));
    StoreSetting(registry, value_names::standardFolder, settings.standardFolder);
}
