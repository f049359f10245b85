#include "randomuser/model/Model.h"
#include "resources/resource.h"

void Model::playKeys(const Action& action) {
    switch (action.kind) {
        case Kind::barKeys:
            setColor(BarColor(current(), action.which == 0 ? action.value : 255 - action.value));
            break;
        case Kind::swatchKeys:
            setColor(*swatchColor(action.which, action.value));
            setColor(*swatchColor(action.which, SwatchRightOf(action.which, action.value)));
            break;
        case Kind::tabs: {
            const std::vector<int> stops = tabStops();
            focus = stops.at(static_cast<std::size_t>(action.value) % stops.size());
            break;
        }
        default: break;
    }
}

/// From the red slider on: what is disabled is left out, and of several options one counts.
std::vector<int> Model::tabStops() const {
    std::vector<int> stops = {IDC_hsbRed,    IDC_hsbGreen,    IDC_hsbBlue,
                              IDC_txtSetRed, IDC_txtSetGreen, IDC_txtSetBlue};
    if (isSetEnabled) stops.push_back(IDC_cmdSetColor);
    if (!isModeLocked) stops.push_back(isDecimal ? IDC_optSetDec : IDC_optSetHex);
    for (int mark = 0; mark < 6; ++mark) stops.push_back(IDC_txtName + mark);
    stops.push_back(IDC_optColor + selected);
    stops.push_back(IDC_lblColorBar);
    if (!areNamesCopied) stops.push_back(IDC_lstAutocopy);
    for (const int last :
         {IDC_chkJSNamesOnly, IDC_cmdWebsafe, IDC_cmdFailsafe, IDC_cmdJavaScript, IDC_chkColorPick})
        stops.push_back(last);
    return stops;
}
