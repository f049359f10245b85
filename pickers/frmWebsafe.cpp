#include "pickers/frmWebsafe.h"

#include <string>
#include <vector>

#include "core/ChannelText.h"
#include "core/ColorTables.h"
#include "pickers/SwatchPlaces.h"
#include "resources/resource.h"
#include "toolkit/platform/Mouse.h"

frmWebsafe::frmWebsafe(ChannelEditors& channels)
    : SwatchWindow("frmWebsafe"), channels(channels), lblWebsafeColor(*this, IDC_lblWebsafeColor) {
    Load.bind(this, &frmWebsafe::Form_Load);
    lblWebsafeColor.MouseDown.bind(this, &frmWebsafe::lblWebsafeColor_MouseDown);
    lblWebsafeColor.setPlaces(WebsafePlaces());
    setBackground(COLOR_WINDOW);
}

void frmWebsafe::Form_Load() {
    std::vector<std::string> tips;
    tips.reserve(colorTables.websafeChannels.size());
    for (const Color& color : colorTables.websafeChannels) tips.push_back(HexText(color));
    lblWebsafeColor.setColors(colorTables.websafeColor);
    lblWebsafeColor.setTips(std::move(tips));
}

void frmWebsafe::lblWebsafeColor_MouseDown(int index, int button) {
    if (button == leftButton) channels.SetSliders(colorTables.websafeChannels[index]);
}
