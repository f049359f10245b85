// How does the user change the settings?
#pragma once

#include <string>

#include "settings/RegistryStringHandler.h"
#include "support/AppState.h"
#include "toolkit/controls/Buttons.h"
#include "toolkit/controls/Label.h"
#include "toolkit/controls/ListBox.h"
#include "toolkit/forms/Form.h"

/// Edits all settings but the custom template. Nothing is taken over or stored before OK; the start-up
/// notation is stored only, for the next start.
class frmOptions final : public Form {
public:
    frmOptions(AppState& state, const RegistryStringHandler& registry);

private:
    void Form_Load();
    void Form_Activate();
    void lstStandardFormat_Click();
    void cmdChange_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    void ShowExample();
    void ShowFolder(const std::string& folder);
    void TakeChoices();
    void StoreSettings() const;

    AppState& state;
    Settings& settings;
    const RegistryStringHandler& registry;

    ListBox lstStandardFormat;
    OptionGroup promptToSave;
    OptionButton optYes;
    OptionButton optNo;
    Button cmdChange;
    Label lblSelectedStandardFolder;
    OptionGroup sortOrder;
    OptionButton optAlphabetically;
    OptionButton optDotNet;
    Label lblExample;
    Button cmdOK;
    Button cmdCancel;
    bool isOpening = false;  ///< until the form is first activated
};
