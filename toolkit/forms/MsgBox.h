// How does the program tell or ask the user something?
#pragma once

#include "toolkit/forms/Form.h"
#include "toolkit/platform/Platform.h"

/// Shows a message box over the form, or on its own while the form is not on the screen (or there is none).
/// style and answer are those of Windows: MB_YESNO | MB_ICONQUESTION, IDYES.
inline int MsgBox(const Form* form, const char* text, UINT style, const char* title) {
    return ::MessageBoxA(form ? form->messageOwner() : nullptr, text, title, style);
}
