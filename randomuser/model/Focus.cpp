#include "randomuser/model/Focus.h"

#include <vector>

#include "resources/resource.h"

namespace {

/// What is disabled is left out, and of several options one counts.
std::vector<int> TabStops(const Look& look) {
    std::vector<int> stops = {IDC_hsbRed,    IDC_hsbGreen,    IDC_hsbBlue,
                              IDC_txtSetRed, IDC_txtSetGreen, IDC_txtSetBlue};
    if (look.isSetEnabled) stops.push_back(IDC_cmdSetColor);
    if (look.isModeEnabled) stops.push_back(look.isDecimal ? IDC_optSetDec : IDC_optSetHex);
    for (int mark = 0; mark < 6; ++mark) stops.push_back(IDC_txtName + mark);
    stops.push_back(IDC_optColor + look.selected);
    stops.push_back(IDC_lblColorBar);
    if (!look.areNamesCopied) stops.push_back(IDC_lstAutocopy);
    for (const int last :
         {IDC_chkJSNamesOnly, IDC_cmdWebsafe, IDC_cmdFailsafe, IDC_cmdJavaScript, IDC_chkColorPick})
        stops.push_back(last);
    return stops;
}

}  // namespace

int StopAfter(const Look& look, int times) {
    const std::vector<int> stops = TabStops(look);
    return stops.at(static_cast<std::size_t>(times) % stops.size());
}
