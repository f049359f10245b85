// Who gives a device context back, and puts back what was selected into it?
#pragma once

#include "toolkit/platform/Platform.h"

/// The context of a window for a scope; nullptr stands for the whole screen.
class WindowContext {
public:
    explicit WindowContext(HWND window) : window(window), context(::GetDC(window)) {}
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;
    ~WindowContext() { ::ReleaseDC(window, context); }

    HDC get() const { return context; }

private:
    HWND window;
    HDC context;
};

/// A font, bitmap, pen or brush in use in a context for a scope; then the one before it is back.
class Selected {
public:
    Selected(HDC context, HGDIOBJ object) : context(context), previous(::SelectObject(context, object)) {}
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;
    ~Selected() { ::SelectObject(context, previous); }

private:
    HDC context;
    HGDIOBJ previous;
};
