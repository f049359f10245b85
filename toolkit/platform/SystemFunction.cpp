#include "toolkit/platform/SystemFunction.h"

#include <stdexcept>

#include "toolkit/platform/Text.h"

FARPROC FindSystemFunction(const char* library, const char* name) {
    const HMODULE loaded = ::LoadLibraryExW(Wide(library).c_str(), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const FARPROC found = loaded ? ::GetProcAddress(loaded, name) : nullptr;
    if (!found) throw std::runtime_error("Windows lacks a function");
    return found;
}
