// How is each action done by real keys and mouse?
#pragma once

#include <functional>
#include <map>

#include "randomuser/Eyes.h"
#include "randomuser/OtherProgram.h"
#include "randomuser/Soon.h"
#include "randomuser/model/Action.h"
#include "randomuser/model/Look.h"
#include "tests/driver/Huevox.h"

/// Acts on the running program. What depends on its state is taken from the model before the action.
class Hands {
public:
    /// patience: for how many milliseconds it waits for what the action needs.
    Hands(const Huevox& huevox, Eyes& eyes, OtherProgram& other, DWORD patience)
        : huevox(huevox), eyes(eyes), other(other), patience(patience) {}

    /// What the action has needed and has waited for in vain, or "".
    std::string play(const Action& action, const Look& before);
    /// Movements while picking: each may cost a context of the screen.
    int pickMovements() const { return movements; }

    /// Moves a window as a user does.
    static void moveTo(HWND window, POINT place);

private:
    void playSliders(const Action& action);
    void playBoxes(const Action& action);
    void playPicks(const Action& action, const Look& before);
    void playKeys(const Action& action, const Look& before);
    void playCommand(const Action& action);
    void playDialogs(const Action& action);
    void playWindows(const Action& action, const Look& before);
    void playOutside(const Action& action, const Look& before);

    /// Waits until condition is true, or nothing can come any more because the program has ended.
    template <class Condition>
    void await(const char* what, Condition condition) {
        if (!missing.empty()) return;
        if (!Soon([&] { return condition() || !eyes.isRunning(); }, patience)) missing = what;
    }
    /// Brings a window of the program, or the other program's, to the front, and waits until keys go there.
    void bring(Front front) {
        bringWindow([&] { return eyes.windowOf(front); });
    }
    void bringBox() {
        bringWindow([&] { return eyes.box(); });
    }
    void bringWindow(const std::function<HWND()>& windowOf);

    void clickAt(POINT place);
    LONG nextAside();
    void clickOn(int id);
    void clickInBox(HWND button);
    void focusOn(int id);
    void focusByKey(WORD letter, int id);
    void awaitFocus(HWND window);
    void retype(int id, const std::string& text);
    void dragSlider(int slider, int from, int to);
    void pick(const Action& action, const Look& before);
    void openPicker(int index);
    void clickSwatch(const Action& action);
    void uncover(HWND window, POINT place);
    void closeHelp();
    POINT toolButton(int command);
    void closePicker(int index);
    void close(int way);
    void chooseFromMenu(int menu, int item);
    void choosePath(const std::string& path, bool isForNotepad);
    void closeNotepad();
    void answer(const Action& action);
    void vainClick(int mark) const;
    /// Until the keys and clicks so far have arrived: what is posted or sent would overtake them.
    void waitForInput();

    const Huevox& huevox;
    Eyes& eyes;
    OtherProgram& other;
    DWORD patience;
    std::string missing;  ///< the first thing that has been waited for in vain
    bool isClickedLeft = false;
    int movements = 0;
    std::map<int, POINT> toolButtons;
};
