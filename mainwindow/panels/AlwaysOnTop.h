// How does the user keep the window above all others?
#pragma once

#include "mainwindow/panels/CommandBar.h"
#include "toolkit/forms/Form.h"

/// An item of the window's own menu, with a check mark while it is on; for this run.
class AlwaysOnTop {
public:
    AlwaysOnTop(Form& form, CommandBar& commands);

    /// At load: the item.
    void Prepare();

private:
    void mnuSystemOnTop_Click();

    Form& form;
    bool isOnTop = false;
};
