#include "toolkit/Form.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "toolkit/Control.h"
#include "toolkit/DialogTemplate.h"
#include "toolkit/FocusMove.h"
#include "toolkit/FormWindow.h"
#include "toolkit/ModalHold.h"
#include "toolkit/Timer.h"
#include "toolkit/ToolTips.h"
#include "toolkit/WindowText.h"

namespace {

constexpr UINT activatedMessage = WM_APP + 1;
constexpr UINT focusLeftMessage = WM_APP + 2;

std::vector<Form*> loadedForms;
Form* formBeingCreated = nullptr;
ModalHold modalHold;

}  // namespace

Form::Form(const char* name, int twipsPerUnit) : name(name), twipsPerUnit(twipsPerUnit) {}

Form::~Form() {
    if (window) ::DestroyWindow(window);
}

void Form::load() {
    if (window) return;
    const DialogTemplate layout = LoadDialogTemplate(name);
    createFrame(layout);
    for (const TemplateItem& item : layout.items) createControl(item);
    accelerators = ::LoadAcceleratorsA(::GetModuleHandleA(nullptr), name);
    for (const Timer* timer : timers) timer->start(window);
    Load.pass();
    if (window) state = State::loaded;
}

void Form::createFrame(const DialogTemplate& layout) {
    state = State::loading;
    formBeingCreated = this;
    CreateFormWindow(name, layout, &Form::proc);
    if (!window) throw std::runtime_error("the platform refused a window");
    loadedForms.push_back(this);
    modalHold.join(window);
    dpi = static_cast<int>(::GetDpiForWindow(window));
    font = MessageFont(dpi);
    PlaceFormWindow(window, fromUnits(layout.width), fromUnits(layout.height), dpi);
}

void Form::createControl(const TemplateItem& item) {
    // Edges are scaled, not sizes, so that what meets at 96 DPI meets at every DPI.
    RECT place = {fromUnits(item.x), fromUnits(item.y), fromUnits(item.x + item.width),
                  fromUnits(item.y + item.height)};
    Control* control = controls.withId(static_cast<int>(item.id));
    const Control* container = control ? control->container : nullptr;
    const HWND parent = container ? container->window : window;
    ::MapWindowPoints(window, parent, reinterpret_cast<POINT*>(&place), 2);
    const HWND created = CreateFormControl(parent, item, place, font.get());
    if (!created) throw std::runtime_error("the platform refused a control");
    if (control) control->attach(created);
}

void Form::show(int showCommand) { ::ShowWindow(window, showCommand); }

void Form::activate() {
    isActivatePending = false;
    if (state == State::loaded) Activate.raise();
}

void Form::unload() {
    if (!window || state == State::unloading || !mayUnload()) return;
    close();
}

bool Form::mayUnload() {
    bool isCancelled = false;
    isAsking = true;
    QueryUnload.raise(isCancelled);
    isAsking = false;
    return !isCancelled;
}

void Form::close() {
    if (!window) return;
    state = State::unloading;
    Unload.raise();
    ::DestroyWindow(window);
}

void Form::unloadAll(const Form* except) {
    const std::vector<Form*> forms = loadedForms;
    for (Form* form : forms) {
        if (form != except) form->unload();
    }
}

void Form::stopAllTimers() {
    for (const Form* form : loadedForms) {
        for (const Timer* timer : form->timers) timer->stop(form->window);
    }
}

std::string Form::text() const { return WindowText(window); }

void Form::setText(std::string_view caption) { ::SetWindowTextA(window, std::string(caption).c_str()); }

void Form::setPointer(HCURSOR shape) {
    pointer = shape;
    ::SetCursor(shape ? shape : ::LoadCursorA(nullptr, IDC_ARROW));
}

void Form::setMenuItemEnabled(int command, bool isEnabled) {
    ::EnableMenuItem(::GetMenu(window), command, MF_BYCOMMAND | (isEnabled ? MF_ENABLED : MF_GRAYED));
}

void Form::tipChanged(const Control& control) {
    if (toolTips) control.showTips(*toolTips);
}

void Form::focusLeaves(HWND leaving) {
    // Posted, so that the next control is looked for when the handler has enabled and disabled all that it
    // will.
    if (leaving && ::GetFocus() == leaving)
        ::PostMessageA(window, focusLeftMessage, 0, reinterpret_cast<LPARAM>(leaving));
}

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
    state = State::unloaded;
    if (loadedForms.empty()) ::PostQuitMessage(0);
}
