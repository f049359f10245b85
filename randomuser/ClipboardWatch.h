// Is on the clipboard what must be there?
#pragma once

#include <string>

#include "randomuser/model/Clipboard.h"
#include "toolkit/platform/Platform.h"

/// Knows a copy by the number that Windows gives it.
class ClipboardWatch {
public:
    /// What was copied stays, and while a copy is due its time counts from now.
    std::string difference(const ClipboardFact& before, const ClipboardFact& now);
    /// Waits until the program has copied the text. What differs then, or "".
    std::string settle(HWND program, const std::string& expected, DWORD patience);

private:
    DWORD lastNumber = 0;  ///< at the end of the last step
};
