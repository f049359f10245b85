// How is a function of the platform reached whose library is loaded only when somebody needs it?
#pragma once

#include "toolkit/platform/Platform.h"

/// The library stays loaded from then on. Throws std::runtime_error when there is no such function.
FARPROC FindSystemFunction(const char* library, const char* name);

/// The same with the type that the platform declares it with.
template <class Declared>
Declared* SystemFunction(const char* library, const char* name) {
    return reinterpret_cast<Declared*>(reinterpret_cast<void*>(FindSystemFunction(library, name)));
}
