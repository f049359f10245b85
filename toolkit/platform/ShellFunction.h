// How are the shell and COM called? Their six libraries take a good part of a start that needs none of them.
#pragma once

#include "toolkit/platform/SystemFunction.h"

/// A function of the shell. Loads its library when the first is asked for.
template <class Declared>
Declared* ShellFunction(const char* name) {
    return SystemFunction<Declared>("shell32.dll", name);
}

/// The same of COM.
template <class Declared>
Declared* ComFunction(const char* name) {
    return SystemFunction<Declared>("ole32.dll", name);
}
