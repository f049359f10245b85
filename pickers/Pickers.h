// Who opens the palette windows and that of the contrast?
#pragma once

#include "mainwindow/panels/CommandBar.h"
#include "pickers/frmContrast.h"
#include "pickers/frmFailsafe.h"
#include "pickers/frmJavaScript.h"
#include "pickers/frmWebsafe.h"
#include "toolkit/controls/Buttons.h"

/// The three palette windows and that of the marks' contrast, one of each, and what opens them in the main
/// window: a button or a command.
class Pickers {
public:
    Pickers(Form& form, const Settings& settings, CommandBar& commands, ChannelEditors& channels,
            ColorMarks& marks);

    /// The marks may have changed.
    void ShowMarks() { contrast.ShowMarks(); }

private:
    void cmdWebsafe_Click() { Open(websafe); }
    void cmdFailsafe_Click() { Open(failsafe); }
    void cmdJavaScript_Click() { Open(javaScript); }

    void mnuToolsContrast_Click() { Open(contrast); }

    void Open(SwatchWindow& picker) const;

    Form& form;
    Button cmdWebsafe;
    Button cmdFailsafe;
    Button cmdJavaScript;
    frmWebsafe websafe;
    frmFailsafe failsafe;
    frmJavaScript javaScript;
    frmContrast contrast;
};
