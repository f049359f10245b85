#include "toolkit/controls/Buttons.h"

#include "toolkit/forms/Form.h"

void Button::onCommand(int /*id*/, int code) {
    if (code == BN_CLICKED && isEnabled()) Click.raise();
}

void CheckBox::onCommand(int /*id*/, int code) {
    if (code == BN_CLICKED && isEnabled()) Click.raise();
}

OptionButton::OptionButton(Form& form, int id, OptionGroup& group) : Control(form, id), group(group) {
    group.buttons.push_back(this);
}

void OptionButton::turnOn() {
    group.on = this;
    // Also those that are off: the Tab key stops only at the one that is on.
    for (const OptionButton* other : group.buttons) {
        if (other != this) other->send(BM_SETCHECK, BST_UNCHECKED);
    }
    // Not as an automatic button: for one of those Wine asks its server twice about every control of the
    // form, to turn off what is off already.
    send(BM_SETSTYLE, BS_RADIOBUTTON, FALSE);
    send(BM_SETCHECK, BST_CHECKED);
    send(BM_SETSTYLE, BS_AUTORADIOBUTTON, FALSE);
}

void OptionButton::onCommand(int /*id*/, int code) {
    // Windows also reports a click on the button that is on already.
    if (code != BN_CLICKED || !isEnabled() || value()) return;
    turnOn();
    Click.raise();
}

LRESULT OptionButton::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // A window that comes to the front gives the focus back to the button that had it, and Windows would turn
    // that one on.
    const bool isGivenBack =
        message == WM_SETFOCUS && !::IsChild(form.handle(), reinterpret_cast<HWND>(wParam));
    if (isGivenBack && group.on && group.on != this) {
        group.on->setFocus();
        return 0;
    }
    const LRESULT result = Control::onMessage(message, wParam, lParam);
    if (message == WM_SETFOCUS) GotFocus.raise();
    if (message == WM_KILLFOCUS) LostFocus.raise();
    return result;
}
