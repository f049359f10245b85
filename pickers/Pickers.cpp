#include "pickers/Pickers.h"

#include <array>
#include <vector>

#include "resources/resource.h"
#include "support/Messages.h"

Pickers::Pickers(Form& form, const Settings& settings, ChannelEditors& channels)
    : form(form),
      cmdWebsafe(form, IDC_cmdWebsafe),
      cmdFailsafe(form, IDC_cmdFailsafe),
      cmdJavaScript(form, IDC_cmdJavaScript),
      websafe(channels),
      failsafe(channels),
      javaScript(settings, channels) {
    cmdWebsafe.Click.bind(this, &Pickers::cmdWebsafe_Click);
    cmdFailsafe.Click.bind(this, &Pickers::cmdFailsafe_Click);
    cmdJavaScript.Click.bind(this, &Pickers::cmdJavaScript_Click);
    cmdWebsafe.setToolTip(messages::websafeTip);
    cmdFailsafe.setToolTip(messages::failsafeTip);
    cmdJavaScript.setToolTip(messages::javaScriptTip);
}

void Pickers::Open(SwatchWindow& picker) const {
    const std::array<const SwatchWindow*, 3> pickers = {&websafe, &failsafe, &javaScript};
    std::vector<HWND> others = {form.handle()};
    for (const SwatchWindow* other : pickers) {
        if (other->isLoaded()) others.push_back(other->handle());
    }
    picker.open(others);
}
