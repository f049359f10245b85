// How are a form's windows made from its template, and which has the focus first?
#pragma once

#include "toolkit/forms/DialogTemplate.h"
#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Twips.h"

/// The program's dialog resource of that name. Throws std::runtime_error when there is none.
DialogTemplate LoadDialogTemplate(const char* name);

/// Creates the form's own window, hidden and without controls, of the window class name with that procedure,
/// owned by owner if that is not nullptr. The procedure gets its first message before this returns. Returns
/// nullptr when Windows refuses.
HWND CreateFormWindow(const char* name, const DialogTemplate& layout, const Area& place, HWND owner,
                      WNDPROC proc);

/// What decides how wide a window's frame is.
struct FrameStyle {
    DWORD style = 0;
    DWORD exStyle = 0;
    bool hasMenu = false;
};

/// The size of a window with its frame that has a client area of that size, in pixels.
SIZE FrameSize(const FrameStyle& frame, int clientWidth, int clientHeight, int dpi);

/// In the middle of the owner, but on its monitor; without an owner, of the work area.
Area CenteredPlace(HWND owner, const SIZE& frame);

/// Creates one control at place, in pixels of parent. Returns nullptr when Windows refuses.
HWND CreateFormControl(HWND parent, const TemplateItem& item, const RECT& place, HFONT font);

/// Gives the focus to the first control of a form that is active, unless a control has it already. Windows
/// does so only in its own dialogs.
void FocusFirst(HWND form);
