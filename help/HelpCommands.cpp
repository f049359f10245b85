#include "help/HelpCommands.h"

#include "Addresses.h"
#include "help/HelpTopic.h"
#include "help/Links.h"
#include "resources/resource.h"
#include "support/Reported.h"

HelpCommands::HelpCommands(Form& form, CommandBar& commands, HTMLHelp& help) : form(form), help(help) {
    commands.bind(IDM_mnuHelpHelp, this, &HelpCommands::mnuHelpHelp_Click);
    commands.bind(IDM_mnuHomePage, this, &HelpCommands::mnuHomePage_Click);
    commands.bind(IDM_mnuHelpAboutHuevox, this, &HelpCommands::mnuHelpAboutHuevox_Click);
}

void HelpCommands::mnuHelpHelp_Click() { ShowHelpTopic(help, welcomeTopic, form); }

void HelpCommands::mnuHomePage_Click() {
    Reported(form, messages::noBrowser, [] { OpenInBrowser(homePageAddress); });
}

void HelpCommands::mnuHelpAboutHuevox_Click() { about.showModal(form); }
