#include "pickers/Pickers.h"

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
    std::vector<HWND> others = {form.handle()};
    for (const Form* other : {static_cast<const Form*>(&websafe), static_cast<const Form*>(&failsafe),
                              static_cast<const Form*>(&javaScript)}) {
        if (other->isLoaded()) others.push_back(other->handle());
    }
    picker.open(others);
}
