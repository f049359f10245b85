// Which controls does a form have?
#pragma once

#include <vector>

#include "toolkit/platform/Platform.h"

class FormPart;
class ToolTips;

/// The controls of one form, which live elsewhere.
class FormParts {
public:
    void add(FormPart& part) { parts.push_back(&part); }
    void remove(const FormPart& part) { std::erase(parts, &part); }

    /// nullptr when no control has that id or window.
    FormPart* withId(int id) const;
    FormPart* withWindow(HWND window) const;

    void showTips(ToolTips& toolTips) const;
    /// Tells them that the scaling has changed and that they are in their new places.
    void rescaled() const;
    void detachAll() const;

private:
    std::vector<FormPart*> parts;
};
