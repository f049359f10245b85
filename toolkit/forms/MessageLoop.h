// How do messages reach the forms?
#pragma once

class Form;

/// Runs until the last form is gone. Returns the program's exit code.
int RunMessageLoop();

/// Runs until the form is unloaded, or the program is to end.
void RunModalLoop(const Form& form);

/// Lets messages that other windows have sent and painting through; the user's input, timers and posted
/// messages wait for the end of the running handler. So no handler re-enters another with an older colour in
/// hand.
void Yield();
