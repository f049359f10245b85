// How does the user pick a colour anywhere on the screen?
#pragma once

#include <optional>

#include "core/Color.h"
#include "mainwindow/panels/Autocopy.h"
#include "mainwindow/panels/ChannelEditors.h"
#include "mainwindow/panels/ColorMarks.h"
#include "mainwindow/panels/CommandBar.h"
#include "mainwindow/panels/Loupe.h"
#include "mainwindow/panels/PickShield.h"
#include "mainwindow/panels/ScreenPixels.h"
#include "toolkit/controls/Buttons.h"
#include "toolkit/controls/PictureBox.h"

/// Colour Pick Mode: the selected mark's sample is pressed and the pointer dragged to any pixel, whose colour
/// is shown on the way and applied at the end. Without a mouse a command begins the pick, and arrows move the
/// pointer.
class ScreenPick {
public:
    ScreenPick(Form& form, CommandBar& commands, ChannelEditors& channels, ColorMarks& marks,
               const Autocopy& autocopy);

    /// At load: picking by keyboard is for Colour Pick Mode only.
    void Prepare();
    /// Another window comes to the front: the keys of a pick would go there.
    void LeaveFront();

private:
    enum class State {
        idle,
        dragging,  ///< by a button that was pressed on a sample
        byKeyboard,
        over,  ///< ended by a key while the button is still held: its release does nothing more
    };

    void chkColorPick_Click();
    void mnuToolsPick_Click();
    void picSample_MouseDown(int mark, int button);
    void picSample_MouseMove(int mark, int buttons);
    void picSample_MouseUp(int mark, int button);
    void picSample_MouseCaptureLost(int mark);
    void Form_DisplayChange();
    void Form_InputPreview(const MSG& input, bool& isTaken);
    void loupe_Uncovered();

    bool isPicking() const { return state == State::dragging || state == State::byKeyboard; }
    void Begin(State how, PictureBox& sample);
    void PressKey(int key);
    bool IsEndingKeyStillHeld(const MSG& input);
    void MovePointer(int right, int down);
    void Follow(POINT place);
    void Take();
    void Cancel();
    void LetGo();

    void EnableOpening(bool isEnabled);
    void ShowPreview(PictureBox& pressed);
    void HidePreview();

    Form& form;
    CommandBar& commands;
    ChannelEditors& channels;
    ColorMarks& marks;
    const Autocopy& autocopy;

    CheckBox chkColorPick;
    PictureBox picPick;

    ScreenPixels screen;
    Loupe loupe;
    PickShield shield;
    State state = State::idle;
    Color pickedColor;                ///< black until the first pick, then kept from one to the next
    Color colorBefore;                ///< the picked colour when the pick began
    std::optional<POINT> knownPlace;  ///< pressed or read already, until the pointer has left it
    bool isButtonHeld = false;        ///< the left one, since it was pressed on a sample
    int endingKey = 0;                ///< the key that ended the pick, until it is released
};
