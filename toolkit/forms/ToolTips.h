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
    /// The tip of a part of a control, which the control knows by a number.
    void set(HWND control, int part, const RECT& area, const std::string& text) const;
    /// While they are not shown, one that is on the screen goes as well.
    void setShown(bool isShown) const;

private:
    void replace(TTTOOLINFOA& tool, const std::string& text) const;

    HWND form;
    HWND window;  // owned by the form's window, and destroyed with it
};
