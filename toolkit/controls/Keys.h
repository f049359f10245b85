// Which key is the dialog manager asking about?
#pragma once

#include "toolkit/platform/Platform.h"

/// Of WM_GETDLGCODE: whether the control would get the Enter key if it wants it.
inline bool IsEnter(LPARAM lParam) {
    const auto* input = reinterpret_cast<const MSG*>(lParam);
    return input && input->message == WM_KEYDOWN && input->wParam == VK_RETURN;
}
