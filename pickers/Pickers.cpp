#include "pickers/Pickers.h"

#include <array>
#include <vector>

#include "resources/resource.h"
#include "support/Messages.h"

Pickers::Pickers(Form& form, const Settings& settings, CommandBar& commands, ChannelEditors& channels,
                 ColorMarks& marks)
    : form(form),
      cmdWebsafe(form, IDC_cmdWebsafe),
      cmdFailsafe(form, IDC_cmdFailsafe),
      cmdJavaScript(form, IDC_cmdJavaScript),
      websafe(channels),
      failsafe(channels),
      javaScript(settings, channels),
      contrast(marks) {
    cmdWebsafe.Click.bind(this, &Pickers::cmdWebsafe_Click);
    cmdFailsafe.Click.bind(this, &Pickers::cmdFailsafe_Click);
    cmdJavaScript.Click.bind(this, &Pickers::cmdJavaScript_Click);
    commands.bind(IDM_mnuToolsContrast, this, &Pickers::mnuToolsContrast_Click);
    cmdWebsafe.setToolTip(messages::websafeTip);
    cmdFailsafe.setToolTip(messages::failsafeTip);
    cmdJavaScript.setToolTip(messages::javaScriptTip);
}

void Pickers::Open(SwatchWindow& picker) const {
    const std::array<const SwatchWindow*, 4> pickers = {&websafe, &failsafe, &javaScript, &contrast};
    std::vector<HWND> others = {form.handle()};
    for (const SwatchWindow* other : pickers) {
        if (other->isLoaded()) others.push_back(other->handle());
    }
    picker.open(others);
}
