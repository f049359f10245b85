// What do other programs do meanwhile?
#pragma once

#include <thread>

#include "toolkit/platform/Platform.h"

/// A window beside the program's, which takes the foreground and the clipboard. It answers at all times, in a
/// thread of its own: the platform would hand the focus over late.
class OtherProgram {
public:
    static constexpr const char* className = "OtherProgram";

    /// Waits until the window is in front.
    OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram();

    void takeForeground() const;
    void holdClipboard();
    void letGo();

private:
    HWND window = nullptr;
    std::thread thread;
    bool isHolding = false;
};
