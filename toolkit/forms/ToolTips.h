// Who shows the tool tips of a form's controls?
#pragma once

#include <string>
#include <vector>

#include "toolkit/platform/Platform.h"

/// The one tool-tip window of a form. Where areas overlap, the tip that came first is shown.
class ToolTips {
public:
    explicit ToolTips(HWND form);

    /// The tip of a control; an empty text removes it.
    void set(HWND control, const std::string& text);
    /// The tip of an area of a control; part is the control's own number for it.
    void set(HWND control, int part, const RECT& area, const std::string& text);
    /// Switching them off also hides the one that is showing.
    void setShown(bool isShown) const;

private:
    struct Tip {
        HWND window;  // it and the number name the tip to Windows
        UINT_PTR number;
        RECT area;
        std::string text;
    };

    Tip& tipOf(const TTTOOLINFOW& tool);
    void change(TTTOOLINFOW& tool, const std::string& text);

    HWND form;
    HWND window;  // owned by the form's window, and destroyed with it
    std::vector<Tip> tips;
};
