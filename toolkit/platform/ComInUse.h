// How does a routine call a part of Windows that is built on COM?
#pragma once

#include "toolkit/platform/ShellFunction.h"

// Needs the header of Windows before it.
#include <objbase.h>

/// COM on this thread for as long as the value lives.
class ComInUse {
public:
    ComInUse()
        : leave(ComFunction<decltype(::CoUninitialize)>("CoUninitialize")),
          result(ComFunction<decltype(::CoInitializeEx)>("CoInitializeEx")(
              nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
    ComInUse(const ComInUse&) = delete;
    ComInUse& operator=(const ComInUse&) = delete;
    ~ComInUse() {
        if (SUCCEEDED(result)) leave();
    }

private:
    decltype(::CoUninitialize)* leave;
    HRESULT result;
};
