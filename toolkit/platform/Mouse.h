// Which mouse buttons does a message report?
#pragma once

#include "toolkit/platform/Platform.h"

/// The codes of the buttons. Those of several held buttons are added.
inline constexpr int leftButton = 1;
inline constexpr int rightButton = 2;
inline constexpr int middleButton = 4;
inline constexpr int otherButton = 8;

/// The button that was pressed, or 0 when the message is no press.
constexpr int PressedButton(UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN: return leftButton;
        case WM_RBUTTONDOWN: return rightButton;
        case WM_MBUTTONDOWN: return middleButton;
        case WM_XBUTTONDOWN: return otherButton;
        default: return 0;
    }
}

/// The button that was released, or 0 when the message is no release.
constexpr int ReleasedButton(UINT message) {
    switch (message) {
        case WM_LBUTTONUP: return leftButton;
        case WM_RBUTTONUP: return rightButton;
        case WM_MBUTTONUP: return middleButton;
        case WM_XBUTTONUP: return otherButton;
        default: return 0;
    }
}

/// The buttons held down, from the keys of a mouse message.
constexpr int HeldButtons(WPARAM keys) {
    return ((keys & MK_LBUTTON) != 0 ? leftButton : 0) | ((keys & MK_RBUTTON) != 0 ? rightButton : 0) |
           ((keys & MK_MBUTTON) != 0 ? middleButton : 0) |
           ((keys & (MK_XBUTTON1 | MK_XBUTTON2)) != 0 ? otherButton : 0);
}
