// How does a form show one of the program's icons as a picture?
#pragma once

#include "toolkit/controls/Control.h"

/// A square window of class "PictureBox". It shows the icon's drawing of its size, or a larger one scaled
/// down; a drawing is scaled up only when there is none large enough.
class IconBox : public Control {
public:
    /// icon is the number of an icon with drawings of 64, 128 and 256 pixels.
    IconBox(Form& form, int id, int icon) : Control(form, id), icon(icon) {}

private:
    void attached() override { receive(); }
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void paint() const;

    int icon;
};
