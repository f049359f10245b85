// How does the program tell or ask the user something?
#pragma once

#include <string_view>

#include "toolkit/forms/Form.h"
#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Text.h"

/// Shows a message box over the form, or on its own while the form is not on the screen (or there is none).
/// style and answer are those of Windows: MB_YESNO | MB_ICONQUESTION, IDYES.
inline int MsgBox(const Form* form, std::string_view text, UINT style, std::string_view title) {
    const HWND owner = form ? form->messageOwner() : nullptr;
    return ::MessageBoxW(owner, Wide(text).c_str(), Wide(title).c_str(), style);
}
