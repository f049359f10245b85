#include "toolkit/ControlList.h"

#include <algorithm>

#include "toolkit/Control.h"

Control* ControlList::withId(int id) const {
    const auto found = std::ranges::find(controls, id, &Control::id);
    return found == controls.end() ? nullptr : *found;
}

Control* ControlList::withWindow(HWND window) const {
    const auto found = std::ranges::find(controls, window, &Control::window);
    return window && found != controls.end() ? *found : nullptr;
}

void ControlList::showTips(ToolTips& toolTips) const {
    for (const Control* control : controls) control->showTips(toolTips);
}

void ControlList::rescaled() const {
    for (Control* control : controls) control->rescaled();
}

void ControlList::detachAll() const {
    for (Control* control : controls) control->detach();
}
