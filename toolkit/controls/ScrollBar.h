// How does a form take a number by sliding?
#pragma once

#include "toolkit/controls/Control.h"
#include "toolkit/forms/Event.h"

/// A horizontal scroll bar that moves by 1 for its arrows and its trough alike.
class ScrollBar : public Control {
public:
    ScrollBar(Form& form, int id, int minimum, int maximum)
        : Control(form, id), minimum(minimum), maximum(maximum), current(minimum) {}

    Event<> Change;  ///< the value has changed, by the user or by setValue
    Event<> Scroll;  ///< the thumb has been dragged to another value

    int value() const { return current; }
    /// Limits value to the range; raises Change when it differs from the present one.
    void setValue(int value);

private:
    void attached() override;
    void onScroll(int code, int position) override;
    void dragTo(int position);
    void dropAt(int position);
    bool isThumbHeld() const;
    bool moveTo(int value, bool isPainted = true);

    int minimum;
    int maximum;
    int current;
    bool isDragged = false;
};
