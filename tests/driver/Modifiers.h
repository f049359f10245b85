// Which modifier keys are held while a test presses others?
#pragma once

#include <initializer_list>

#include "toolkit/platform/Platform.h"

/// Waits until every other thread with a visible window, and the one that shows the desktop, has done what it
/// was doing. A program that hears of the display's keys while one is down writes the states of all keys back
/// as it read them a moment ago, modifier keys too.
void WaitForEverybody();

/// Presses or releases a modifier key, again until it stays so.
void SetHeld(WORD modifier, bool isHeld);

/// Releases all other modifier keys: any program may bring one back, not only the one in front.
void LetGoOfOthers(std::initializer_list<WORD> modifiers);
