// How does a form take a click, a yes or no, or a choice among several?
#pragma once

#include <vector>

#include "toolkit/controls/Control.h"
#include "toolkit/forms/Event.h"

class Button : public Control {
public:
    using Control::Control;

    Event<> Click;

private:
    void onCommand(int id, int code) override;
};

class CheckBox : public Control {
public:
    using Control::Control;

    Event<> Click;  ///< the user's click; setValue raises nothing

    bool value() const { return send(BM_GETCHECK) == BST_CHECKED; }
    void setValue(bool isChecked) { send(BM_SETCHECK, isChecked ? BST_CHECKED : BST_UNCHECKED); }

private:
    void onCommand(int id, int code) override;
};

class OptionButton;

/// Of the option buttons of one group at most one is on.
class OptionGroup {
    friend class OptionButton;
    std::vector<const OptionButton*> buttons;
    OptionButton* on = nullptr;
};

class OptionButton : public Control {
public:
    /// A button lives as long as its group.
    OptionButton(Form& form, int id, OptionGroup& group);

    Event<> Click;  ///< the user has turned the button on; turnOn raises nothing
    Event<> GotFocus;
    Event<> LostFocus;

    bool value() const { return group.on == this; }
    /// Turns this button on and the rest of its group off.
    void turnOn();

private:
    void attached() override { subclass(); }
    void onCommand(int id, int code) override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    OptionGroup& group;
};
