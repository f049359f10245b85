// Does the window show what it must?
#pragma once

#include <string>

#include "randomuser/Comparison.h"
#include "randomuser/Eyes.h"
#include "randomuser/Screen.h"
#include "randomuser/model/Look.h"

/// One look at the program.
class Inspection {
public:
    /// earlier: what was seen last.
    Inspection(Eyes& eyes, const Look& expected, const Look& earlier, Extent extent)
        : eyes(eyes), expected(expected), earlier(earlier), compare(extent) {}

    /// The first thing that is not as expected, as "what: ...", or "".
    std::string difference();

private:
    void lookAtFrame();
    void lookAtFront();
    void lookAtPicker(int picker);
    void lookAtOrder();
    void lookAtBox();
    void lookInto(HWND box);
    void lookAtOptions(HWND box);
    void lookAtColor();
    void lookAtMode();
    void lookAtMarks();
    void lookAtNotations();
    void lookAtCommands();
    void lookAtPixels();
    void lookAtMarkIn(const ScreenPart& part, int mark, POINT sample, POINT name);
    void lookAtBarIn(const ScreenPart& part, POINT bar);

    std::string textOf(int id) { return eyes.text(eyes.control(id)); }
    int numberOf(int id, UINT message) { return static_cast<int>(eyes.ask(eyes.control(id), message)); }
    bool isChecked(int id) { return eyes.ask(eyes.control(id), BM_GETCHECK) == BST_CHECKED; }
    bool isEnabled(int id) const { return ::IsWindowEnabled(eyes.control(id)) != FALSE; }

    Eyes& eyes;
    const Look& expected;
    const Look& earlier;
    Comparison compare;
};
