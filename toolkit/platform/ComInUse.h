// How does a routine call a part of Windows that is built on COM?
#pragma once

#include "toolkit/platform/Platform.h"

// Needs the header of Windows before it.
#include <objbase.h>

/// COM on this thread for as long as the value lives.
class ComInUse {
public:
    ComInUse() : result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
    ComInUse(const ComInUse&) = delete;
    ComInUse& operator=(const ComInUse&) = delete;
    ~ComInUse() {
        if (SUCCEEDED(result)) ::CoUninitialize();
    }

private:
    HRESULT result;
};
