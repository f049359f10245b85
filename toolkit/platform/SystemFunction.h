// How is a Windows function called whose library is loaded only on demand?
#pragma once

#include "toolkit/platform/Platform.h"

/// The library stays loaded from then on. Throws std::runtime_error when there is no such function.
FARPROC FindSystemFunction(const char* library, const char* name);

/// The same, with the type that Windows' headers declare.
template <class Declared>
Declared* SystemFunction(const char* library, const char* name) {
    return reinterpret_cast<Declared*>(reinterpret_cast<void*>(FindSystemFunction(library, name)));
}
