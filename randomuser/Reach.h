// How does the random user come to a window, a control or a place?
#pragma once

#include <functional>
#include <string>

#include "randomuser/Eyes.h"
#include "randomuser/Soon.h"

/// Waits for what an action needs. After the first thing that it has waited for in vain it waits no more.
class Reach {
public:
    /// patience: for how many milliseconds it waits.
    Reach(Eyes& eyes, DWORD patience) : eyes(eyes), patience(patience) {}

    void begin() { missing.clear(); }
    bool isAll() const { return missing.empty(); }
    /// What has not come, or "".
    std::string complaint() const;

    /// Waits until condition is true, or nothing can come any more because the program has ended.
    template <class Condition>
    void await(const char* what, Condition condition) {
        if (!missing.empty()) return;
        if (!Soon([&] { return condition() || !eyes.isRunning(); }, patience)) missing = what;
    }
    /// Brings a window of the program, or the other program's, to the front, and waits until keys go there.
    void bring(Front front);
    void bringBox();
    void bringWindow(const std::function<HWND()>& windowOf);
    /// Waits until the program has brought the window to the front. A window that is brought there meanwhile
    /// takes away the keys of the menu that is to bring it.
    void awaitInFront(const std::function<HWND()>& windowOf);
    void uncover(HWND window, POINT place);
    /// Moves a window as a user does.
    static void moveTo(HWND window, POINT place);

    /// Until the window has handled what has been posted to it: only then does it paint.
    void awaitRest(HWND window);

    void clickAt(POINT place);
    void clickOn(int id);
    void clickInBox(HWND button);
    /// Some pixels, which differ from one time to the next.
    LONG nextAside();

    void focusOn(int id);
    void focusByKey(WORD letter, int id);
    void awaitFocus(HWND window);
    /// Until the keys and clicks so far have arrived: what is posted or sent would overtake them.
    void waitForInput();

private:
    Eyes& eyes;
    DWORD patience;
    std::string missing;
    bool isClickedLeft = false;
};
