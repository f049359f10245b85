// How does a form show a plain coloured area?
#pragma once

#include "toolkit/Control.h"

/// A window of class "PictureBox"; it can hold other controls.
class PictureBox : public Control {
public:
    using Control::Control;
    using Control::hold;

    static void registerClass() { registerOwnClass("PictureBox"); }

    COLORREF backColor() const { return back; }
    void setBackColor(COLORREF color);

private:
    void attached() override { receive(); }
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    COLORREF back = ::GetSysColor(COLOR_BTNFACE);
};
