// How does the user pick a colour anywhere on the screen?
#pragma once

#include <optional>

#include "core/Color.h"
#include "mainwindow/panels/ChannelEditors.h"
#include "mainwindow/panels/ColorMarks.h"
#include "mainwindow/panels/CommandBar.h"
#include "mainwindow/panels/ScreenPixels.h"
#include "toolkit/controls/Buttons.h"
#include "toolkit/controls/PictureBox.h"

/// Colour Pick Mode: the selected mark's sample is pressed and the pointer dragged to any pixel, whose colour
/// is shown on the way and applied at the end.
class ScreenPick {
public:
    ScreenPick(Form& form, CommandBar& commands, ChannelEditors& channels, ColorMarks& marks);

private:
    void chkColorPick_Click();
    void picSample_MouseDown(int mark, int button);
    void picSample_MouseMove(int mark, int buttons);
    void picSample_MouseUp(int mark, int button);
    void picSample_MouseCaptureLost(int mark);
    void Form_DisplayChange();

    void EnableOpening(bool isEnabled);
    void ShowPreview(PictureBox& pressed);
    void HidePreview();

    Form& form;
    CommandBar& commands;
    ChannelEditors& channels;
    ColorMarks& marks;

    CheckBox chkColorPick;
    PictureBox picPick;

    ScreenPixels screen;
    Color pickedColor;                ///< black until the first pick, then kept from one to the next
    std::optional<POINT> pressPlace;  ///< until the pointer has left it
    bool isPicking = false;
};
