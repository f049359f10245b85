#include <algorithm>

#include "toolkit/forms/Form.h"
#include "toolkit/forms/FormPart.h"
#include "toolkit/forms/FormWindow.h"
#include "toolkit/forms/SystemMenu.h"
#include "toolkit/forms/Timer.h"
#include "toolkit/forms/ToolTips.h"

namespace {

constexpr UINT activatedMessage = WM_APP + 1;

HWND Window(LPARAM parameter) { return reinterpret_cast<HWND>(parameter); }

BOOL CALLBACK PassOn(HWND child, LPARAM message) {
    ::SendMessageW(child, static_cast<UINT>(message), 0, 0);
    return TRUE;
}

/// Moves the form's focus on from a control that was disabled or hidden, unless another control has it by now
/// or that one is usable again.
void MoveFocusOn(HWND form, HWND left) {
    const HWND focus = ::GetFocus();
    if (focus && focus != form && focus != left) return;
    const bool isLeftUsable = ::IsWindowEnabled(left) && ::IsWindowVisible(left);
    const HWND next = isLeftUsable ? left : ::GetNextDlgTabItem(form, left, FALSE);
    ::SendMessageW(form, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
}

}  // namespace

/// What a form does with messages from Windows.
class Form::Receiver {
public:
    explicit Receiver(Form& form) : form(form) {}

    static LRESULT deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    LRESULT onCommand(int id, int code, HWND sender);
    LRESULT onScroll(int code, int position, HWND sender);
    LRESULT onColor(HDC context, HWND sender);
    LRESULT onTimer(UINT_PTR id);
    LRESULT onClose();
    LRESULT onQueryEndSession();
    LRESULT onEndSession(bool isEnding);
    LRESULT onActivated();
    LRESULT onFocusLeft(HWND left);
    LRESULT onScalingWanted(int dpi, SIZE& size);
    LRESULT onScaling(int dpi, const RECT& suggested);
    void onSizeLimits(MINMAXINFO& limits) const;
    void onActivate(int how);
    void onEnable(bool isEnabled);
    LRESULT onDrop(HANDLE files);
    bool onMouse();
    void onDestroyed();

    Form& form;
};

LRESULT CALLBACK Form::proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return TrappedAnswer([&] { return Receiver::deliver(window, message, wParam, lParam); });
}

LRESULT Form::Receiver::deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = std::ranges::find(loadedForms, window, &Form::window);
    if (found != loadedForms.end()) return Receiver(**found).onMessage(message, wParam, lParam);
    if (!formBeingCreated) return ::DefDlgProcW(window, message, wParam, lParam);
    formBeingCreated->window = window;
    return Receiver(*formBeingCreated).onMessage(message, wParam, lParam);
}

LRESULT Form::Receiver::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = form.window;  // onDestroyed forgets it
    switch (message) {
        case WM_COMMAND: return onCommand(LOWORD(wParam), HIWORD(wParam), Window(lParam));
        case WM_HSCROLL: return onScroll(LOWORD(wParam), HIWORD(wParam), Window(lParam));
        case WM_TIMER: return onTimer(wParam);
        case WM_CLOSE: return onClose();
        case WM_DROPFILES: return onDrop(reinterpret_cast<HANDLE>(wParam));
        case WM_QUERYENDSESSION: return onQueryEndSession();
        case WM_ENDSESSION: return onEndSession(wParam != FALSE);
        case WM_GETDPISCALEDSIZE:
            return onScalingWanted(static_cast<int>(wParam), *reinterpret_cast<SIZE*>(lParam));
        case WM_DPICHANGED: return onScaling(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
        case WM_GETMINMAXINFO: onSizeLimits(*reinterpret_cast<MINMAXINFO*>(lParam)); return 0;
        case activatedMessage: return onActivated();
        case focusLeftMessage: return onFocusLeft(Window(lParam));
        case WM_CTLCOLORDLG:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
            if (const LRESULT brush = onColor(reinterpret_cast<HDC>(wParam), Window(lParam))) return brush;
            break;
        case WM_SYSCOLORCHANGE: ::EnumChildWindows(window, PassOn, message); break;
        case WM_DISPLAYCHANGE: form.DisplayChange.raise(); break;
        case WM_SYSCOMMAND:
            if (LOWORD(wParam) < firstOfWindows) return onCommand(LOWORD(wParam), 0, nullptr);
            break;
        case WM_WINDOWPOSCHANGING: topOrder.moving(window, *reinterpret_cast<WINDOWPOS*>(lParam)); break;
        case WM_ENABLE: onEnable(wParam != FALSE); break;
        case WM_ACTIVATE: onActivate(LOWORD(wParam)); break;
        case WM_SETCURSOR:
            if (onMouse()) return TRUE;
            break;
        case WM_NCDESTROY: onDestroyed(); break;
        default: break;
    }
    return ::DefDlgProcW(window, message, wParam, lParam);
}

/// A form that a modal window has disabled ignores commands from every source.
LRESULT Form::Receiver::onCommand(int id, int code, HWND sender) {
    if (FormPart* part = form.parts.withWindow(sender)) {
        part->onCommand(id, code);
    } else if (!sender && ::IsWindowEnabled(form.window)) {
        form.Command.raise(id);
    }
    return 0;
}

LRESULT Form::Receiver::onScroll(int code, int position, HWND sender) {
    if (FormPart* part = form.parts.withWindow(sender)) part->onScroll(code, position);
    return 0;
}

LRESULT Form::Receiver::onColor(HDC context, HWND sender) {
    // Asked for each time: the brush changes with the user's theme.
    if (sender == form.window) return reinterpret_cast<LRESULT>(::GetSysColorBrush(form.background));
    FormPart* part = form.parts.withWindow(sender);
    return part ? reinterpret_cast<LRESULT>(part->onColor(context)) : 0;
}

LRESULT Form::Receiver::onTimer(UINT_PTR id) {
    const auto timer = std::ranges::find(form.timers, id, &Timer::id);
    if (timer != form.timers.end() && form.isLoaded()) (*timer)->Tick.raise();
    return 0;
}

LRESULT Form::Receiver::onClose() {
    if (::IsWindowEnabled(form.window)) form.unload();
    return 0;
}

/// Answers whether the session may end. A question that is open already is answered first.
LRESULT Form::Receiver::onQueryEndSession() { return !form.isAsking && form.mayUnload(); }

LRESULT Form::Receiver::onEndSession(bool isEnding) {
    if (isEnding) form.close();
    return 0;
}

/// Windows asks how large the window will be at another scaling.
LRESULT Form::Receiver::onScalingWanted(int dpi, SIZE& size) {
    size = form.layout.frameSize(dpi);
    return TRUE;
}

/// The window has come to a monitor of another scaling, or the user has changed it.
LRESULT Form::Receiver::onScaling(int dpi, const RECT& suggested) {
    form.layout.rescale(dpi, {suggested.left, suggested.top});
    form.parts.rescaled();
    if (form.toolTips) form.parts.showTips(*form.toolTips);
    ::RedrawWindow(form.window, nullptr, nullptr, RDW_ERASE | RDW_INVALIDATE | RDW_ALLCHILDREN);
    return 0;
}

/// Windows widens a window that is narrower than a limit of its own, and cuts off one that is larger than the
/// screen, whenever the user drags it.
void Form::Receiver::onSizeLimits(MINMAXINFO& limits) const {
    const SIZE frame = form.layout.frameSize();
    limits.ptMinTrackSize = {frame.cx, frame.cy};
}

void Form::Receiver::onActivate(int how) {
    form.isActive = how != WA_INACTIVE;
    if (!form.isLoaded()) return;
    if (how == WA_INACTIVE) {
        form.Deactivate.raise();
    } else if (how == WA_CLICKACTIVE) {
        // Before the click reaches its control, so that what the user chooses by it comes last.
        form.activate();
    } else {
        // The message arrives while Windows is still busy, closing a message box for instance.
        form.isActivatePending = true;
        ::PostMessageW(form.window, activatedMessage, 0, 0);
    }
}

LRESULT Form::Receiver::onActivated() {
    FocusFirst(form.window);
    if (form.isActive && form.isActivatePending) form.activate();
    return 0;
}

LRESULT Form::Receiver::onFocusLeft(HWND left) {
    if (form.isActive) MoveFocusOn(form.window, left);
    return 0;
}

void Form::Receiver::onEnable(bool isEnabled) {
    modalHold.changed(form.window, isEnabled);
    form.drops.refresh();
    // The tip of a form that a dialog holds would lie over the dialog.
    if (form.toolTips) form.toolTips->setShown(isEnabled);
}

/// What is asked about a file has to be seen, although another program was in front until now.
LRESULT Form::Receiver::onDrop(HANDLE files) {
    const std::string path = form.drops.take(files);
    if (path.empty() || !form.isLoaded()) return 0;
    ::SetForegroundWindow(form.window);
    form.FileDrop.raise(path);
    return 0;
}

/// The mouse is over the form; until it has been, no tool tip is of use, nor while a control captures it or a
/// dialog holds the form. True when the form sets the pointer's shape.
bool Form::Receiver::onMouse() {
    const bool isFree = !::GetCapture() && ::IsWindowEnabled(form.window);
    if (!form.toolTips && form.isLoaded() && isFree) {
        form.toolTips = std::make_unique<ToolTips>(form.window);
        form.parts.showTips(*form.toolTips);
    }
    if (form.pointer) ::SetCursor(form.pointer);
    return form.pointer != nullptr;
}

void Form::Receiver::onDestroyed() {
    form.parts.detachAll();
    modalHold.leave(form.window);
    topOrder.leave(form.window);
    form.toolTips.reset();
    std::erase(loadedForms, &form);
    form.window = nullptr;
    form.owner = nullptr;
    form.state = State::unloaded;
    if (loadedForms.empty()) ::PostQuitMessage(0);
}
