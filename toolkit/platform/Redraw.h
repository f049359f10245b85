// How is a window kept from painting while it is being filled?
#pragma once

#include "toolkit/platform/Platform.h"

inline void FreezeRedraw(HWND window) { ::LockWindowUpdate(window); }
inline void UnfreezeRedraw() { ::LockWindowUpdate(nullptr); }

/// Freezes the window for a scope, and unfreezes it on every way out.
class RedrawFrozen {
public:
    explicit RedrawFrozen(HWND window) { FreezeRedraw(window); }
    RedrawFrozen(const RedrawFrozen&) = delete;
    RedrawFrozen& operator=(const RedrawFrozen&) = delete;
    ~RedrawFrozen() { UnfreezeRedraw(); }
};
