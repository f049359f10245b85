// What does the Help menu do?
#pragma once

#include "help/HTMLHelp.h"
#include "help/frmAbout.h"
#include "mainwindow/panels/CommandBar.h"

/// Help, home page and about box.
class HelpCommands {
public:
    HelpCommands(Form& form, CommandBar& commands, HTMLHelp& help);

private:
    void mnuHelpHelp_Click();
    void mnuHomePage_Click();
    void mnuHelpAboutHuevox_Click();

    Form& form;
    HTMLHelp& help;
    frmAbout about;
};
