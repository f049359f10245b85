// How does a benchmark let the program catch up?
#pragma once

#include "mainwindow/frmMain.h"
#include "support/AppState.h"
#include "toolkit/Platform.h"

/// Dispatches all messages that are waiting.
inline void PumpAll() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageA(&message);
}

/// Closes the main window without a question, whatever the benchmark has changed.
inline void CloseUnasked(frmMain& window, AppState& state) {
    state.settings.promptToSave = 0;
    window.unload();
}
