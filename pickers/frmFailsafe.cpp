#include "pickers/frmFailsafe.h"

#include "core/ColorTables.h"
#include "pickers/SwatchPlaces.h"
#include "resources/resource.h"
#include "toolkit/platform/Mouse.h"

frmFailsafe::frmFailsafe(ChannelEditors& channels)
    : SwatchWindow("frmFailsafe"), channels(channels), lblFailsafeColor(*this, IDC_lblFailsafeColor) {
    Load.bind(this, &frmFailsafe::Form_Load);
    lblFailsafeColor.MouseDown.bind(this, &frmFailsafe::lblFailsafeColor_MouseDown);
    lblFailsafeColor.setPlaces(FailsafePlaces());
}

void frmFailsafe::Form_Load() {
    const auto& tips = colorTables.failsafeHex;
    lblFailsafeColor.setColors(colorTables.failsafeColor);
    lblFailsafeColor.setTips({tips.begin(), tips.end()});
}

void frmFailsafe::lblFailsafeColor_MouseDown(int index, int button) {
    if (button == leftButton) channels.SetSliders(Unpack(colorTables.failsafeColor[index]));
}
