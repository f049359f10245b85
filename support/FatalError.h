// What happens to an error that nobody expected?
#pragma once

/// From here on an unexpected error is told to the user; before, it ends the program silently.
void ArmErrorTrap();

/// True once an unexpected error is ending the program: nothing is asked any more.
bool IsErrorExitInProgress();

/// The end of every unexpected error: one message, then every window goes, and the program with the last.
void HandleFatalError();
