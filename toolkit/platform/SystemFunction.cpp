#include "toolkit/platform/SystemFunction.h"

#include <stdexcept>

FARPROC FindSystemFunction(const char* library, const char* name) {
    const HMODULE loaded = ::LoadLibraryExA(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const FARPROC found = loaded ? ::GetProcAddress(loaded, name) : nullptr;
    if (!found) throw std::runtime_error("Windows lacks a function");
    return found;
}
