// How do messages reach the forms?
#pragma once

class Form;

/// Runs until the last form is gone. Returns the program's exit code.
int RunMessageLoop();

/// Runs until the form is unloaded or the program has been told to end.
void RunModalLoop(const Form& form);

/// Handles painting and messages that other windows have sent. The user's input, timers and posted messages
/// wait until the running handler returns, so no handler re-enters another that holds an older colour.
void Yield();
/// The same; and what has been painted is on the screen afterwards, where it can be read.
void YieldToScreen();
