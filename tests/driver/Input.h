// How does a test press keys and move the mouse as a user does?
#pragma once

#include <string_view>

#include "toolkit/platform/Platform.h"

/// Presses and releases a key, with the modifier keys held meanwhile, once a window takes keys.
void Press(WORD key, std::initializer_list<WORD> modifiers = {});
/// Whether keys go to a window of that thread.
[[nodiscard]] bool TakesKeys(DWORD thread);
void KeyDown(WORD key);
void KeyUp(WORD key);

/// Types text by the keys that the keyboard has for it, and without a key what it has none for.
void Type(std::string_view text);

/// A point on the screen, from the left and top of the window's client area.
POINT OnScreen(HWND window, POINT point);
POINT CenterOf(HWND window);
/// The place of a window on the screen, without so many pixels of its border.
RECT AreaOf(HWND window, int border = 0);

/// Whether no window of any program covers that place of this one. Of a form that a dialog disables nobody
/// can tell.
[[nodiscard]] bool IsOnTop(HWND window, POINT screen);
/// Waits until it is so.
void ExpectOnTop(HWND window, POINT screen);

void MoveMouse(POINT screen);
void PressButton(POINT screen);
void ReleaseButton(POINT screen);
/// So many notches up, or down, with the pointer where it is.
void TurnWheel(int notches);

void PressRightButton(POINT screen);
void ReleaseRightButton(POINT screen);
void Click(POINT screen);
void RightClick(POINT screen);
void Click(HWND window);
void DoubleClick(HWND window);
