// Who opens the palette windows?
#pragma once

#include "pickers/frmFailsafe.h"
#include "pickers/frmJavaScript.h"
#include "pickers/frmWebsafe.h"
#include "toolkit/controls/Buttons.h"

/// The three palette windows, one of each, and the main window's buttons for them.
class Pickers {
public:
    Pickers(Form& form, const Settings& settings, ChannelEditors& channels);

private:
    void cmdWebsafe_Click() { Open(websafe); }
    void cmdFailsafe_Click() { Open(failsafe); }
    void cmdJavaScript_Click() { Open(javaScript); }

    void Open(SwatchWindow& picker) const;

    Form& form;
    Button cmdWebsafe;
    Button cmdFailsafe;
    Button cmdJavaScript;
    frmWebsafe websafe;
    frmFailsafe failsafe;
    frmJavaScript javaScript;
};
