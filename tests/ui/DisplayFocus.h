// Has the display given the focus to the window that is in front?
#pragma once

/// It does so some time after the platform.
bool HasDisplayFocus();
