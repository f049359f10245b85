// How does a benchmark run the program in its own process?
#pragma once

#include "mainwindow/frmMain.h"
#include "support/AppState.h"
#include "support/FatalError.h"
#include "tests/driver/Usage.h"
#include "toolkit/controls/ControlClasses.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/platform/Platform.h"

/// Dispatches all waiting messages.
inline void PumpAll() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
}

/// Tool tips are made when the pointer first enters a window.
inline void BringTips(HWND window) {
    ::SendMessageA(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

inline double Kilobytes(const Usage& usage) { return static_cast<double>(usage.bytes) / 1024; }

/// The main window as the user has it, shown and idle. It closes without asking, whatever was changed.
class RunningProgram {
public:
    RunningProgram() {
        RegisterControlClasses();
        errorTrap = HandleFatalError;
        window.load();
        window.show(SW_SHOWNORMAL);
        window.activate();
        PumpAll();
    }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram() {
        state.settings.promptToSave = 0;
        window.unload();
    }

    HWND form() const { return window.handle(); }
    Usage usage() const { return UsageOf(::GetCurrentProcess(), form()); }

private:
    AppState state;
    frmMain window{state};
};
