// What comes of a colour that is chosen, or shown once more?
#pragma once

#include <optional>

#include "randomuser/model/Action.h"
#include "randomuser/model/Box.h"
#include "randomuser/model/Clipboard.h"
#include "randomuser/model/MarkSet.h"
#include "randomuser/model/Values.h"

/// Everyone who chooses a colour comes here.
class Editing {
public:
    Editing(MarkSet& marks, Values& values, Box& box, ClipboardFact& clipboard)
        : marks(marks), values(values), box(box), clipboard(clipboard) {}

    bool hasCopied() const { return copied.has_value(); }

    void setColor(const Color& color);
    /// What is shown of the colour is written anew.
    void applyAgain();
    void moveSlider(int slider, int value);
    void stepSlider(int slider, int steps);
    /// keys: as the value of Kind::sliderKeys.
    void pressSliderKeys(int slider, int keys);
    /// A step of the bar.
    void takeStep(int step) { setColor(BarColor(marks.current(), step)); }
    void select(int mark);
    void selectBeside(int steps);
    void applyValues();
    void pressSet();
    void setMode(bool wantsDecimal);
    void copy() { copied = marks.current(); }
    void paste();

private:
    void pressSliderKey(int slider, SliderKey key);

    MarkSet& marks;
    Values& values;
    Box& box;
    ClipboardFact& clipboard;
    std::optional<Color> copied;
};
