// How does the random user wait, without losing time?
#pragma once

#include "toolkit/platform/Platform.h"

/// Looks again and again until condition is true. False when it still is not after the limit.
template <class Condition>
bool Soon(Condition condition, DWORD milliseconds = 5000) {
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    while (!condition()) {
        if (::GetTickCount64() >= end) return false;
        ::Sleep(1);
    }
    return true;
}
