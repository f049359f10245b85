// Which colour does a pick from the screen take?
#pragma once

#include "randomuser/model/Editing.h"

/// What a pick over a sample, which of 0 to 5, or over a step of the bar takes.
Color PickTarget(const SixMarks& marks, int selected, const Action& pick);

class Pick {
public:
    Pick(Editing& editing, const MarkSet& marks) : editing(editing), marks(marks) {}

    bool isOn() const { return isPickMode; }

    void switchMode() { isPickMode = !isPickMode; }
    void drag(const Action& pick);
    /// A release takes what was picked last, whichever button it is.
    void release();

private:
    Editing& editing;
    const MarkSet& marks;
    bool isPickMode = false;
    Color picked;
};
