#include <algorithm>

#include "toolkit/Control.h"
#include "toolkit/FocusMove.h"
#include "toolkit/Form.h"
#include "toolkit/Timer.h"
#include "toolkit/ToolTips.h"

bool Form::preTranslate(MSG& message) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
    const HWND root = ::GetAncestor(message.hwnd, GA_ROOT);
    const auto found = std::ranges::find(loadedForms, root, &Form::window);
    if (found == loadedForms.end()) return false;
    const Form& form = **found;
    if (form.accelerators && ::TranslateAcceleratorA(form.window, form.accelerators, &message)) return true;
    return ::IsDialogMessageA(form.window, &message) != FALSE;
}

LRESULT CALLBACK Form::proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* form = reinterpret_cast<Form*>(::GetWindowLongPtrA(window, DLGWINDOWEXTRA));
    if (!form) {
        form = formBeingCreated;
        form->window = window;
        ::SetWindowLongPtrA(window, DLGWINDOWEXTRA, reinterpret_cast<LONG_PTR>(form));
    }
    return form->onMessage(message, wParam, lParam);
}

LRESULT Form::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND form = window;  // onDestroyed forgets it
    switch (message) {
        case WM_COMMAND: return onCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        case WM_HSCROLL: return onScroll(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        case WM_TIMER: return onTimer(wParam);
        case WM_CLOSE: return onClose();
        case WM_QUERYENDSESSION: return onQueryEndSession();
        case WM_ENDSESSION: return onEndSession(wParam != FALSE);
        case activatedMessage: return onActivated();
        case focusLeftMessage: return onFocusLeft(reinterpret_cast<HWND>(lParam));
        case WM_CTLCOLORDLG:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
            if (const LRESULT brush = onColor(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)))
                return brush;
            break;
        case WM_ENABLE: modalHold.changed(form, wParam != FALSE); break;
        case WM_ACTIVATE: onActivate(LOWORD(wParam) != WA_INACTIVE); break;
        case WM_SETCURSOR:
            if (onMouse()) return TRUE;
            break;
        case WM_NCDESTROY: onDestroyed(); break;
        default: break;
    }
    return ::DefDlgProcA(form, message, wParam, lParam);
}

/// While a modal window has disabled the form, its commands are ignored by every way in.
LRESULT Form::onCommand(int id, int code, HWND sender) {
    if (Control* control = controls.withWindow(sender)) {
        control->onCommand(id, code);
    } else if (!sender && ::IsWindowEnabled(window)) {
        Command.raise(id);
    }
    return 0;
}

LRESULT Form::onScroll(int code, int position, HWND sender) {
    if (Control* control = controls.withWindow(sender)) control->onScroll(code, position);
    return 0;
}

LRESULT Form::onColor(HDC context, HWND sender) {
    if (sender == window) return reinterpret_cast<LRESULT>(background);
    Control* control = controls.withWindow(sender);
    return control ? reinterpret_cast<LRESULT>(control->onColor(context)) : 0;
}

LRESULT Form::onTimer(UINT_PTR id) {
    const auto timer = std::ranges::find(timers, id, &Timer::id);
    if (timer != timers.end() && isLoaded()) (*timer)->Tick.raise();
    return 0;
}

LRESULT Form::onClose() {
    if (::IsWindowEnabled(window)) unload();
    return 0;
}

/// Answers whether the session may end. A question that is open already is answered first.
LRESULT Form::onQueryEndSession() { return !isAsking && mayUnload(); }

LRESULT Form::onEndSession(bool isEnding) {
    if (isEnding) close();
    return 0;
}

void Form::onActivate(bool becomesActive) {
    isActive = becomesActive;
    if (!isLoaded()) return;
    if (becomesActive) {
        // The message arrives inside the platform's own work, the closing of a message box for instance.
        isActivatePending = true;
        ::PostMessageA(window, activatedMessage, 0, 0);
    } else {
        Deactivate.raise();
    }
}

LRESULT Form::onActivated() {
    if (isActive && isActivatePending) activate();
    return 0;
}

LRESULT Form::onFocusLeft(HWND left) {
    if (isActive) MoveFocusOn(window, left);
    return 0;
}

/// The mouse is over the form: the first time for a tool tip to be of use. True when the form gives the
/// pointer its shape.
bool Form::onMouse() {
    if (!toolTips && isLoaded()) {
        toolTips = std::make_unique<ToolTips>(window);
        controls.showTips(*toolTips);
    }
    if (pointer) ::SetCursor(pointer);
    return pointer != nullptr;
}

void Form::onDestroyed() {
    controls.detachAll();
    std::erase(loadedForms, this);
    modalHold.leave(window);
    toolTips.reset();
    window = nullptr;
    owner = nullptr;
    state = State::unloaded;
    if (loadedForms.empty()) ::PostQuitMessage(0);
}
