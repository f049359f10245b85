#include "toolkit/forms/FormParts.h"

#include <algorithm>

#include "toolkit/forms/FormPart.h"

FormPart* FormParts::withId(int id) const {
    const auto found = std::ranges::find(parts, id, &FormPart::id);
    return found == parts.end() ? nullptr : *found;
}

FormPart* FormParts::withWindow(HWND window) const {
    const auto found = std::ranges::find(parts, window, &FormPart::window);
    return window && found != parts.end() ? *found : nullptr;
}

void FormParts::showTips(ToolTips& toolTips) const {
    for (const FormPart* part : parts) part->showTips(toolTips);
}

void FormParts::rescaled() const {
    for (FormPart* part : parts) part->rescaled();
}

void FormParts::detachAll() const {
    for (FormPart* part : parts) part->detach();
}
