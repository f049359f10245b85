// How does a program run for a session?
#pragma once

#include "randomuser/Hands.h"
#include "randomuser/model/StoredSettings.h"

/// Stores what a program must find when it starts: settings and files.
void PrepareStart(const StoredSettings& settings);

/// A running program, and who looks at it and acts on it.
struct Program {
    /// Waits until the program's window is on the screen.
    Program(OtherProgram& other, DWORD patience);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

    Huevox huevox;
    HANDLE process;  ///< nullptr when no window has come
    Eyes eyes;
    Hands hands;
};
