// What does the window of the 216 websafe colours do?
#pragma once

#include "mainwindow/panels/ChannelEditors.h"
#include "pickers/SwatchWindow.h"
#include "toolkit/controls/CellStrip.h"

/// The websafe colours; a left press on one sets the sliders to it.
class frmWebsafe final : public SwatchWindow {
public:
    explicit frmWebsafe(ChannelEditors& channels);

private:
    void Form_Load();
    void lblWebsafeColor_MouseDown(int index, int button);

    ChannelEditors& channels;
    CellStrip lblWebsafeColor;
};
