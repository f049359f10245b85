// Which controls does a form have?
#pragma once

#include <vector>

#include "toolkit/Platform.h"

class Control;
class ToolTips;

/// The controls of one form, which live elsewhere.
class ControlList {
public:
    void add(Control& control) { controls.push_back(&control); }
    void remove(const Control& control) { std::erase(controls, &control); }

    /// nullptr when the form has a window of that id, or that window, without a control.
    Control* withId(int id) const;
    Control* withWindow(HWND window) const;

    void showTips(ToolTips& toolTips) const;
    /// The form has another scaling, and its controls are in their new places.
    void rescaled() const;
    void detachAll() const;

private:
    std::vector<Control*> controls;
};
