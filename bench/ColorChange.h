// What is one change of colour, until everything is painted?
#pragma once

#include "toolkit/platform/Platform.h"

void PaintAll(HWND window);

/// The slider's event, through the program.
void ChangeThroughProgram(HWND window, int value);

/// The same five controls set directly: what Windows costs however a program is written.
void ChangeThroughPlatform(HWND window, int value);
