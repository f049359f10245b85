// How is each action done by real keys and mouse?
#pragma once

#include <map>

#include "randomuser/Action.h"
#include "randomuser/Eyes.h"
#include "randomuser/Model.h"
#include "randomuser/OtherProgram.h"
#include "tests/ui/Huevox.h"

/// Acts on the running program. What depends on its state is taken from the model before the action.
class Hands {
public:
    Hands(const Huevox& huevox, Eyes& eyes, OtherProgram& other) : huevox(huevox), eyes(eyes), other(other) {}

    void play(const Action& action, const Model& before);
    /// Brings a window of the program, or the other program's, to the front when it is not there.
    void bring(Front front) const;
    /// Closes a menu that is open.
    void leaveMenu() const;
    /// Movements while picking: each may cost a context of the screen.
    int pickMovements() const { return movements; }

    /// Moves a window as a user does, once the window manager has put it somewhere.
    static void moveTo(HWND window, POINT place);

private:
    void playSliders(const Action& action);
    void playBoxes(const Action& action);
    void playPicks(const Action& action, const Model& before);
    void playKeys(const Action& action, const Model& before);
    void playCommand(const Action& action);
    void playDialogs(const Action& action);
    void playWindows(const Action& action, const Model& before);
    void playOutside(const Action& action, const Model& before);

    void clickOn(int id);
    void focusOn(int id);
    void retype(int id, const std::string& text);
    void dragSlider(int slider, int from, int to) const;
    void pick(const Action& action, const Model& before);
    void openPicker(int index);
    void clickSwatch(const Action& action) const;
    void uncover(Front front, POINT place) const;
    static POINT steadyCenter(HWND window);
    void closeHelp() const;
    void waitForFront(const Look& before) const;
    POINT toolButton(int command);
    void closePicker(int index) const;
    void close(int way) const;
    void chooseFromMenu(int menu, int item) const;
    void choosePath(const std::string& path, bool isForNotepad) const;
    void answer(const Action& action) const;
    void vainClick(int mark) const;
    /// Until the keys and clicks so far have arrived: what is posted or sent would overtake them.
    void waitForInput() const;

    const Huevox& huevox;
    Eyes& eyes;
    OtherProgram& other;
    bool isClickedLeft = false;
    int movements = 0;
    std::map<int, POINT> toolButtons;
};
