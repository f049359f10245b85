// What does the window of the 16 failsafe colours do?
#pragma once

#include "mainwindow/panels/ChannelEditors.h"
#include "pickers/SwatchWindow.h"
#include "toolkit/controls/CellStrip.h"

/// The failsafe colours; a left press on one sets the sliders to it.
class frmFailsafe final : public SwatchWindow {
public:
    explicit frmFailsafe(ChannelEditors& channels);

private:
    void Form_Load();
    void lblFailsafeColor_MouseDown(int index, int button);

    ChannelEditors& channels;
    CellStrip lblFailsafeColor;
};
