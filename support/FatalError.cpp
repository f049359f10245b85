#include "support/FatalError.h"

#include <array>
#include <string_view>

#include "support/Messages.h"
#include "toolkit/forms/Form.h"
#include "toolkit/forms/MsgBox.h"
#include "toolkit/platform/FlagGuard.h"
#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Redraw.h"

namespace {

// The trap is called without arguments from wherever an error ends, so what it needs to know is kept here.
bool errorTrapArmed = false;
bool errorExitInProgress = false;
bool errorMessageShown = false;
bool isTelling = false;  // the message is on the screen

/// Message boxes and the dialogs of Windows run loops of their own, which do not end with their owner.
BOOL CALLBACK EndModalDialog(HWND window, LPARAM) {
    std::array<wchar_t, 16> className{};
    ::GetClassNameW(window, className.data(), className.size());
    if (std::wstring_view(className.data()) == L"#32770") ::EndDialog(window, IDCANCEL);
    return TRUE;
}

/// Nothing may raise an event behind the message, and the user must be able to see and answer it.
void Quiet() {
    Form::stopAllTimers();
    // The message has no owner that it would lie over.
    Form::keepNoneOnTop();
    UnfreezeRedraw();
    ::ReleaseCapture();
}

}  // namespace

void ArmErrorTrap() {
    errorTrapArmed = true;
    errorExitInProgress = false;
    errorMessageShown = false;
}

bool IsErrorExitInProgress() { return errorExitInProgress; }

void HandleFatalError() {
    // A further error behind the message must not take it away; the windows go when it is answered.
    if (!errorTrapArmed || isTelling) return;
    errorExitInProgress = true;
    Quiet();
    if (!errorMessageShown) {
        errorMessageShown = true;
        const Raised telling(isTelling);
        MsgBox(nullptr, messages::unexpectedError, MB_OK | MB_ICONERROR | MB_TASKMODAL, messages::title);
    }
    ::EnumThreadWindows(::GetCurrentThreadId(), EndModalDialog, 0);
    Form::unloadAll();
}
