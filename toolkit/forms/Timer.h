// How does a form do something at intervals?
#pragma once

#include "toolkit/forms/Event.h"
#include "toolkit/platform/Platform.h"

class Form;

/// Runs while the form has a window; ticks are raised only after loading.
class Timer {
public:
    Timer(Form& form, UINT_PTR id, UINT milliseconds);

    Event<> Tick;

private:
    friend class Form;

    void start(HWND owner) const { ::SetTimer(owner, id, milliseconds, nullptr); }
    void stop(HWND owner) const { ::KillTimer(owner, id); }

    UINT_PTR id;
    UINT milliseconds;
};
