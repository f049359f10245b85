// What is there to see of the program from outside?
#pragma once

#include <array>
#include <map>
#include <string>

#include "randomuser/model/Look.h"
#include "toolkit/platform/Platform.h"

/// Looks at the program from another process. Each question must be answered within a minute.
class Eyes {
public:
    Eyes(HWND main, HANDLE process);

    /// From now on it counts whether every question is answered in time.
    void beginLook() { isAnswering = true; }
    bool hasAnswered() const { return isAnswering; }

    HWND main() const { return form; }
    HWND control(int id) const { return controls.at(id); }
    HWND focus() const;
    /// The window that has captured the mouse, or nullptr.
    HWND capture() const;
    bool isInMenu() const;
    /// Whether keys go to the window, and to no menu.
    static bool hasKeys(HWND window);
    /// For whoever reads of a difference: where keys and clicks go to at the moment.
    std::string situation() const;
    /// The box or dialog that is open and takes input, or nullptr.
    HWND box() const;
    /// The field for a file's name in a dialog, or nullptr.
    static HWND nameField(HWND dialog);
    HWND picker(int index) const;
    Front frontWindow() const;
    /// The window that is in front when the front is as it must be.
    HWND windowOf(Front front) const;
    /// A point of the main window on which there is nothing.
    POINT emptyPlace() const;
    POINT barStep(int step) const;
    static bool isTopmost(HWND window);
    bool isRunning() const;

    double slowestAnswer() const { return slowest; }
    std::string text(HWND window);
    LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

private:
    HWND form;
    HANDLE process;
    std::map<int, HWND> controls;
    double slowest = 0;
    bool isAnswering = true;
};
