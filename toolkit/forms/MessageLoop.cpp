#include "toolkit/forms/MessageLoop.h"

#include "toolkit/forms/Form.h"
#include "toolkit/platform/Platform.h"

namespace {

void Deliver(MSG& message) {
    if (Form::preTranslate(message)) return;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
}

/// A look for a message that finds none gives the processor to whoever else wants it.
bool IsWaiting(UINT kinds) { return HIWORD(::GetQueueStatus(kinds)) != 0; }

}  // namespace

int RunMessageLoop() {
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) Deliver(message);
    return static_cast<int>(message.wParam);
}

void RunModalLoop(const Form& form) {
    MSG message{};
    while (form.isLoaded()) {
        if (::GetMessageW(&message, nullptr, 0, 0) <= 0) {
            ::PostQuitMessage(static_cast<int>(message.wParam));  // for the program's own loop
            return;
        }
        Deliver(message);
    }
}

void Yield() {
    if (IsWaiting(QS_PAINT | QS_SENDMESSAGE)) YieldToScreen();
}

void YieldToScreen() {
    constexpr int limit = 1000;  // a window that never validates itself must not hang the program
    MSG message;
    for (int count = 0; count < limit; ++count) {
        if (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE))
            ::DispatchMessageW(&message);
        else if (!IsWaiting(QS_PAINT))  // a sent message ends a look, whatever else waits
            return;
    }
}
