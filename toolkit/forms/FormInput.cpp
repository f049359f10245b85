#include <algorithm>

#include "toolkit/forms/Form.h"
#include "toolkit/forms/FormPart.h"
#include "toolkit/forms/ToolTips.h"

bool Form::preTranslate(MSG& message) {
    const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    if (!isKey && message.message != WM_MOUSEWHEEL) return false;
    const HWND root = ::GetAncestor(message.hwnd, GA_ROOT);
    const auto found = std::ranges::find(loadedForms, root, &Form::window);
    if (found == loadedForms.end()) return false;
    const Form& form = **found;
    bool isTaken = false;
    form.InputPreview.raise(message, isTaken);
    if (isTaken || !isKey) return isTaken;
    const FormPart* part = form.parts.withWindow(message.hwnd);
    const bool isKept = message.message == WM_KEYDOWN && part && part->keepsKey(message.wParam);
    const bool isShortcut = form.accelerators && !isKept;
    if (isShortcut && ::TranslateAcceleratorW(form.window, form.accelerators, &message)) return true;
    return ::IsDialogMessageW(form.window, &message) != FALSE;
}
