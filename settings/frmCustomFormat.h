// How does the user edit the custom notation?
#pragma once

#include "help/HTMLHelp.h"
#include "settings/RegistryStringHandler.h"
#include "support/AppState.h"
#include "toolkit/controls/Buttons.h"
#include "toolkit/controls/ControlArray.h"
#include "toolkit/controls/TextBox.h"
#include "toolkit/forms/Form.h"

/// Edits the custom template as it is stored. Nothing is taken over or stored before OK.
class frmCustomFormat final : public Form {
public:
    frmCustomFormat(AppState& state, const RegistryStringHandler& registry, HTMLHelp& help);

private:
    static constexpr int tokenCount = 10;

    void Form_Load();
    void Form_Activate();
    void cmdToken_Click(int index);
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();

    void InsertToken(const char* token);

    AppState& state;
    const RegistryStringHandler& registry;
    HTMLHelp& help;

    TextBox txtFormat;
    ControlArray<Button, tokenCount> cmdToken;  ///< cmdUR to cmdLD
    Button cmdOK;
    Button cmdCancel;
    Button cmdHelp;
    bool isOpening = false;  ///< until the form is first activated
};
