// What is the main window made of?
#pragma once

#include "help/HTMLHelp.h"
#include "help/HelpCommands.h"
#include "mainwindow/panels/AlwaysOnTop.h"
#include "mainwindow/panels/Autocopy.h"
#include "mainwindow/panels/ChannelEditors.h"
#include "mainwindow/panels/ColorBar.h"
#include "mainwindow/panels/ColorMarks.h"
#include "mainwindow/panels/ColorProperties.h"
#include "mainwindow/panels/ColorTarget.h"
#include "mainwindow/panels/CommandBar.h"
#include "mainwindow/panels/EditState.h"
#include "mainwindow/panels/ScreenPick.h"
#include "mainwindow/panels/UndoCommands.h"
#include "palette/PaletteCommands.h"
#include "pickers/Pickers.h"
#include "settings/RegistryStringHandler.h"
#include "settings/frmCustomFormat.h"
#include "settings/frmOptions.h"
#include "support/AppState.h"
#include "toolkit/forms/Form.h"

/// The main window: panels, each the owner of its own controls, and the order in which they act together.
class frmMain final : public Form, private ColorTarget {
public:
    explicit frmMain(AppState& state);

private:
    void Form_Load();
    void Form_Activate();
    void Form_Deactivate();
    void Form_QueryUnload(bool& isCancelled);
    void Form_Unload();
    void mnuFileExit_Click();
    void mnuToolsCustomFormat_Click();
    void mnuToolsOptions_Click();
    void marks_Change();

    void CheckColorDepth();
    void SetSelectedColor(int red, int green, int blue) override;

    AppState& state;
    EditState edit;
    HTMLHelp help;
    RegistryStringHandler registry;
    CommandBar commands;
    ChannelEditors channels;
    ColorMarks marks;
    ColorProperties properties;
    ColorBar colorBar;
    UndoCommands undo;
    Autocopy autocopy;
    PaletteCommands palettes;
    ScreenPick screenPick;
    Pickers pickers;
    AlwaysOnTop alwaysOnTop;
    HelpCommands helpCommands;
    frmCustomFormat customFormat;
    frmOptions options;
    unsigned turns = 0;
};
