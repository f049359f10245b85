// Who shows the tool tips of a form's controls?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"

/// The one tool-tip window of a form.
class ToolTips {
public:
    explicit ToolTips(HWND form);

    /// The tip of a control; an empty text removes it.
    void set(HWND control, const std::string& text) const;
    /// The tip of an area of a control; part is the control's own number for it.
    void set(HWND control, int part, const RECT& area, const std::string& text) const;
    /// Switching them off also hides the one that is showing.
    void setShown(bool isShown) const;

private:
    void replace(TTTOOLINFOW& tool, const std::string& text) const;

    HWND form;
    HWND window;  // owned by the form's window, and destroyed with it
};
