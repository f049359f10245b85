// Who releases a device context and restores what was selected into it?
#pragma once

#include "toolkit/platform/Platform.h"

/// A window's device context for a scope; nullptr means the whole screen.
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

/// The device context of a whole window, with its frame, for a scope.
class FrameContext {
public:
    explicit FrameContext(HWND window) : window(window), context(::GetWindowDC(window)) {}
    FrameContext(const FrameContext&) = delete;
    FrameContext& operator=(const FrameContext&) = delete;
    ~FrameContext() { ::ReleaseDC(window, context); }

    HDC get() const { return context; }

private:
    HWND window;
    HDC context;
};

/// Selects a font, bitmap, pen or brush for a scope.
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
