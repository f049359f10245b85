// What do other programs do meanwhile?
#pragma once

#include "toolkit/Platform.h"

/// A small window of another process, which takes the foreground and the clipboard.
class OtherProgram {
public:
    OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram();

    void takeForeground() const;
    void holdClipboard();
    void letGo();
    /// Handles what waits for the window; to be called now and then.
    static void answer();

private:
    HWND window;
    bool isHolding = false;
};
