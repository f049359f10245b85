// Which key is the dialog manager asking about?
#pragma once

#include "toolkit/platform/Platform.h"

/// For WM_GETDLGCODE: whether it asks about the Enter key.
inline bool IsEnter(LPARAM lParam) {
    const auto* input = reinterpret_cast<const MSG*>(lParam);
    return input && input->message == WM_KEYDOWN && input->wParam == VK_RETURN;
}
