// Which files are dropped onto a window, and when does it take any?
#pragma once

#include <string>

#include "toolkit/platform/Platform.h"

/// A form takes files if its template has WS_EX_ACCEPTFILES, until it is told otherwise, and never while it
/// is disabled. The pointer shows that over the window.
class DropTarget {
public:
    void attach(HWND target);
    void setWanted(bool isWanted);
    /// The window has been enabled or disabled.
    void refresh() const;

    /// The whole path of the first file, or "" when none can be taken now. Gives the list back to Windows.
    std::string take(HANDLE list) const;

private:
    bool isOpen() const;

    HWND window = nullptr;
    bool isWanted = false;
};
