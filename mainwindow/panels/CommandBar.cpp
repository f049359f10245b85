#include "mainwindow/panels/CommandBar.h"

#include <array>

#include "resources/resource.h"
#include "support/Messages.h"

namespace {

constexpr ToolButton separator = {};

constexpr std::array<ToolButton, 14> toolButtons = {{
    {IDM_mnuFileNew, IDI_New, "New Palette (Ctrl+N)"},
    {IDM_mnuFileOpen, IDI_Open, messages::openTip},
    {IDM_mnuFileOpenInNotepad, IDI_OpenInNotepad, messages::notepadTip},
    {IDM_mnuFileSave, IDI_Save, "Save Palette (Ctrl+S)"},
    separator,
    {IDM_mnuEditCopyColor, IDI_CopyColor, "Copy Colour From Selected Colour Mark (F2)"},
    {IDM_mnuEditPasteColor, IDI_PasteColor, messages::pasteEnabledTip},
    {IDM_mnuEditFind, IDI_Find, "Find JavaScript Names (F5)"},
    separator,
    {IDM_mnuToolsCustomFormat, IDI_CustomFormat, "Custom Format (F8)"},
    {IDM_mnuToolsOptions, IDI_Options, "Options (F9)"},
    separator,
    {IDM_mnuHelpHelp, IDI_Help, "Help (F1)"},
    {IDM_mnuHelpColorProperties, IDI_ColorProperties, "Colour Properties (F4)"},
}};

}  // namespace

CommandBar::CommandBar(Form& form) : form(form), tbrTools(form, IDC_tbrTools) {
    form.Command.bind(this, &CommandBar::RunCommand);
    tbrTools.ButtonClick.bind(this, &CommandBar::RunCommand);
}

void CommandBar::Prepare() {
    tbrTools.fill(toolButtons);
    for (const ToolButton& button : toolButtons) {
        if (!IsEnabled(button.command)) tbrTools.setButtonEnabled(button.command, false);
    }
    // Every menu item starts greyed.
    for (const auto& [command, state] : commands) form.setMenuItemEnabled(command, state.isEnabled);
}

void CommandBar::SetEnabled(int command, bool isEnabled) {
    bool& wasEnabled = commands[command].isEnabled;
    if (wasEnabled == isEnabled) return;
    wasEnabled = isEnabled;
    form.setMenuItemEnabled(command, isEnabled);
    tbrTools.setButtonEnabled(command, isEnabled);
}

bool CommandBar::IsEnabled(int command) const {
    const auto found = commands.find(command);
    return found != commands.end() && found->second.isEnabled;
}

void CommandBar::RunCommand(int command) {
    if (IsEnabled(command)) commands[command].chosen.raise();
}
