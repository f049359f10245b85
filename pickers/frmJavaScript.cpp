#include "pickers/frmJavaScript.h"

#include <array>

#include "core/ColorTables.h"
#include "pickers/SwatchPlaces.h"
#include "resources/resource.h"
#include "toolkit/platform/Mouse.h"

namespace {

constexpr std::array<ToolButton, 2> sortTools = {{
    {IDM_Alphabetically, IDI_Back, "Sort alphabetically", true},
    {IDM_DotNet, IDI_Forward, "Sort like Visual Studio .NET", true},
}};

}  // namespace

frmJavaScript::frmJavaScript(const Settings& settings, ChannelEditors& channels)
    : SwatchWindow("frmJavaScript"),
      settings(settings),
      channels(channels),
      tbrSortTools(*this, IDC_tbrSortTools),
      lblJavaScriptColor(*this, IDC_lblJavaScriptColor) {
    Load.bind(this, &frmJavaScript::Form_Load);
    tbrSortTools.ButtonClick.bind(this, &frmJavaScript::tbrSortTools_ButtonClick);
    lblJavaScriptColor.MouseDown.bind(this, &frmJavaScript::lblJavaScriptColor_MouseDown);
    lblJavaScriptColor.setPlaces(JavaScriptPlaces());
    setBackground(COLOR_WINDOW);
}

void frmJavaScript::Form_Load() {
    switch (settings.sortIndex) {
        case 0:
            FillAlphabetically();
            tbrSortTools.fill(sortTools, IDM_Alphabetically);
            break;
        case 1:
            FillDotNetOrder();
            tbrSortTools.fill(sortTools, IDM_DotNet);
            break;
        default: tbrSortTools.fill(sortTools); break;  // no swatches, no button pressed
    }
}

void frmJavaScript::Form_Command(int command) {
    tbrSortTools_ButtonClick(command);
    SwatchWindow::Form_Command(command);
}

void frmJavaScript::tbrSortTools_ButtonClick(int button) {
    switch (button) {
        case IDM_Alphabetically: FillAlphabetically(); break;
        case IDM_DotNet: FillDotNetOrder(); break;
        default: break;
    }
}

void frmJavaScript::FillAlphabetically() {
    const auto& tips = colorTables.jsNameHex;
    lblJavaScriptColor.setColors(colorTables.jsColor);
    lblJavaScriptColor.setTips({tips.begin(), tips.end()});
}

void frmJavaScript::FillDotNetOrder() {
    const auto& tips = colorTables.jsDotNetNameHex;
    lblJavaScriptColor.setColors(colorTables.jsDotNetColor);
    lblJavaScriptColor.setTips({tips.begin(), tips.end()});
}

void frmJavaScript::lblJavaScriptColor_MouseDown(int index, int button) {
    if (button != leftButton) return;
    // The order is that of the tool bar now, whatever the swatches were last filled with.
    const bool isAlphabetical = tbrSortTools.isPressed(IDM_Alphabetically);
    const auto& colors = isAlphabetical ? colorTables.jsColor : colorTables.jsDotNetColor;
    channels.SetSliders(Unpack(colors[index]));
}
