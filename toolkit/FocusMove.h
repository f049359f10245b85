// Where does the focus go when the control that has it is disabled or hidden?
#pragma once

#include "toolkit/Platform.h"

/// Moves the form's focus on from a control that has left, unless another control has it by now, or this one
/// is back.
void MoveFocusOn(HWND form, HWND left);
