// Does the window show what it must?
#pragma once

#include <array>
#include <map>
#include <string>

#include "randomuser/Look.h"
#include "toolkit/Platform.h"

/// Looks at the program from another process. Each question must be answered within a second.
class Eyes {
public:
    Eyes(HWND main, HANDLE process);

    /// The first thing that is not as expected, as "what: ...", or "".
    std::string difference(const Look& expected);

    HWND main() const { return form; }
    HWND control(int id) const { return controls.at(id); }
    HWND focus() const;
    /// The window that has captured the mouse, or nullptr.
    HWND capture() const;
    bool isInMenu() const;
    /// The box or dialog that is open, or nullptr.
    HWND box() const;
    /// The field for a file's name in a dialog, or nullptr.
    static HWND nameField(HWND dialog);
    HWND picker(int index) const;
    Front frontWindow() const;
    /// A point of the main window on which there is nothing.
    POINT emptyPlace() const;
    POINT barStep(int step) const;
    bool isRunning() const;

    double slowestAnswer() const { return slowest; }
    std::string text(HWND window);
    LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

private:
    std::string frameDifference(const Look& expected);
    std::string boxDifference(const Look& expected);
    std::string editorDifference(const Look& expected);
    std::string markDifference(const Look& expected);
    std::string commandDifference(const Look& expected);
    std::string pixelDifference(const Look& expected) const;

    HWND form;
    HANDLE process;
    std::map<int, HWND> controls;
    double slowest = 0;
    bool hasAnswered = true;
};
