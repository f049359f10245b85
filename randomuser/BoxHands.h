// How is a message, a file dialog or a dialog of the program answered?
#pragma once

#include <string>

#include "randomuser/Reach.h"

class BoxHands {
public:
    BoxHands(Eyes& eyes, Reach& reach) : eyes(eyes), reach(reach) {}

    /// button: its number.
    void answer(int button, bool isByMouse);
    void choosePath(const std::string& path);
    /// The window that Notepad has come with.
    void closeNotepad();
    void chooseRow(int row);
    /// option: as the value of Kind::chooseOption.
    void chooseOption(int option);
    void typeFormat(const std::string& text);
    void insertToken(int token);
    void close(bool isAccepted, bool isByLetter);
    /// On a mark of the main window, which the box keeps from taking it.
    void clickInVain(int mark) const;

private:
    Eyes& eyes;
    Reach& reach;
};
