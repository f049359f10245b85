// How is a control of any colour set off from what surrounds it?
#pragma once

#include "toolkit/controls/Control.h"

/// A line around another control, outside its window and one pixel wide at every scaling. In the template it
/// is a static rectangle in the system's shadow colour, behind the other control.
class Edge : public Control {
public:
    Edge(Form& form, int id, const Control& inside) : Control(form, id), inside(inside) {}

private:
    void attached() override { surround(); }
    void rescaled() override { surround(); }
    void surround() const;

    const Control& inside;
};
