// Which window classes do the controls in a template need?
#pragma once

/// Once, before the first form is loaded: the window classes that templates name.
void RegisterControlClasses();
