// Which commands does the window offer in its menu and tool bar, and who runs them?
#pragma once

#include <map>

#include "toolkit/controls/ToolBar.h"
#include "toolkit/forms/Event.h"
#include "toolkit/forms/Form.h"

/// Menu items, shortcuts and tool-bar buttons of one command have one number, IDM_<menu item>. A command that
/// has no handler, or is disabled, cannot be run in any way.
class CommandBar {
public:
    explicit CommandBar(Form& form);

    template <class Target>
    void bind(int command, Target* target, void (Target::*handler)()) {
        commands[command].chosen.bind(target, handler);
    }

    /// At load: fills the tool bar, enables the commands that have a handler.
    void Prepare();
    void SetEnabled(int command, bool isEnabled);
    void SetTip(int command, const char* tip) { tbrTools.setButtonTip(command, tip); }

private:
    struct Command {
        Event<> chosen;
        bool isEnabled = true;
    };

    void RunCommand(int command);
    bool IsEnabled(int command) const;

    Form& form;
    ToolBar tbrTools;
    std::map<int, Command> commands;
};
