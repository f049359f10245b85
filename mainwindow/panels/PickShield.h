// What keeps a click from the windows of other programs while no button is held?
#pragma once

#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Platform.h"

/// Windows sends the mouse to the window that has captured it only over the program's own windows, unless a
/// button is held. So the whole desktop gets one of them, which nobody sees and no picture of the screen
/// shows.
class PickShield {
public:
    /// Does nothing where Windows cannot leave a window out of pictures of the screen: every colour would be
    /// that of the shield.
    void raise(HWND owner);
    void lower() { window = {}; }

private:
    Owned<HWND, &::DestroyWindow> window;
};
