// Which form stays above the windows of other programs?
#pragma once

#include <vector>

#include "toolkit/platform/Platform.h"

/// Keeps one form on top, and above it all others: they would vanish behind it otherwise.
class TopOrder {
public:
    /// A form has a window now.
    void join(HWND form);
    /// A form's window is going.
    void leave(HWND form);
    /// Keeps the form on top, or no longer.
    void keep(HWND form, bool isOnTop);
    /// Keeps nobody on top any longer.
    void end();
    /// Windows is about to put the form at another place among the windows.
    void moving(HWND form, WINDOWPOS& place) const;

private:
    HWND kept = nullptr;
    std::vector<HWND> forms;
};
