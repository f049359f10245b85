// What does the window of the 140 JavaScript colours do?
#pragma once

#include "mainwindow/panels/ChannelEditors.h"
#include "pickers/SwatchWindow.h"
#include "support/AppState.h"
#include "toolkit/controls/CellStrip.h"
#include "toolkit/controls/ToolBar.h"

/// The JavaScript colours in one of two orders; a left press on one sets the sliders to it.
class frmJavaScript final : public SwatchWindow {
public:
    frmJavaScript(const Settings& settings, ChannelEditors& channels);

private:
    void Form_Load();
    /// Another program may send the number of a button without the tool bar.
    void Form_Command(int command) override;
    void tbrSortTools_ButtonClick(int button);
    void lblJavaScriptColor_MouseDown(int index, int button);

    void FillAlphabetically();
    void FillDotNetOrder();

    const Settings& settings;
    ChannelEditors& channels;
    ToolBar tbrSortTools;
    CellStrip lblJavaScriptColor;
};
