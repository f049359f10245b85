// How does a form hear that time has passed?
#pragma once

#include "toolkit/forms/Event.h"
#include "toolkit/platform/Platform.h"

class Form;

/// Ticks from the creation of the form's window until its end. Ticks count only once loading has ended.
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
