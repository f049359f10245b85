#include "toolkit/forms/Form.h"

#include <stdexcept>
#include <string>

#include "toolkit/forms/DialogTemplate.h"
#include "toolkit/forms/FormPart.h"
#include "toolkit/forms/FormWindow.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/forms/Timer.h"
#include "toolkit/forms/ToolTips.h"
#include "toolkit/platform/FlagGuard.h"
#include "toolkit/platform/WindowPlace.h"
#include "toolkit/platform/WindowText.h"

Form::Form(const char* name, int twipsPerUnit) : name(name), layout(twipsPerUnit) {}

Form::~Form() {
    if (window) ::DestroyWindow(window);
}

void Form::load() {
    if (window) return;
    const DialogTemplate dialog = LoadDialogTemplate(name);
    createFrame(dialog);
    for (const TemplateItem& item : dialog.items) createControl(item);
    accelerators = ::LoadAcceleratorsW(::GetModuleHandleW(nullptr), Wide(name).c_str());
    for (const Timer* timer : timers) timer->start(window);
    Load.pass();
    if (window) state = State::loaded;
}

void Form::createFrame(const DialogTemplate& dialog) {
    state = State::loading;
    formBeingCreated = this;
    layout.begin(dialog, static_cast<int>(owner ? ::GetDpiForWindow(owner) : ::GetDpiForSystem()));
    const Area place = firstPlace(layout.frameSize());
    CreateFormWindow(name, dialog, place, owner, &Form::proc);
    formBeingCreated = nullptr;
    if (!window) throw std::runtime_error("Windows refused a window");
    loadedForms.push_back(this);
    modalHold.join(window);
    topOrder.join(window);
    drops.attach(window);
    layout.attach(window);
    const SIZE frame = layout.frameSize();
    // Its monitor has another scaling, or Windows has cut off a window larger than the screen.
    if (PlaceOf(window) != Area{place.left, place.top, place.left + frame.cx, place.top + frame.cy})
        PlaceAt(window, firstPlace(frame));
}

Area Form::firstPlace(const SIZE& frame) { return CenteredPlace(owner, frame); }

void Form::createControl(const TemplateItem& item) {
    FormPart* part = parts.withId(static_cast<int>(item.id));
    const FormPart* container = part ? part->container : nullptr;
    const HWND created = layout.create(container ? container->window : window, item);
    if (!created) throw std::runtime_error("Windows refused a control");
    if (part) part->attach(created);
    if (::SendMessageW(created, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON)
        ::SendMessageW(window, DM_SETDEFID, item.id, 0);
}

void Form::show(int showCommand) {
    ::ShowWindow(window, showCommand);
    // A form has one size. Windows may take the first command of a run from its shortcut, whatever it says
    // here.
    if (::IsZoomed(window)) ::ShowWindow(window, SW_RESTORE);
    FocusFirst(window);
}

void Form::showModal(const Form& over) {
    owner = over.window;
    load();
    ::EnableWindow(owner, FALSE);
    show(SW_SHOW);
    activate();
    RunModalLoop(*this);
}

void Form::activate() {
    isActivatePending = false;
    if (state != State::loaded) return;
    layout.fit();
    Activate.raise();
}

void Form::unload() {
    if (!window || state == State::unloading || !mayUnload()) return;
    close();
}

bool Form::mayUnload() {
    bool isCancelled = false;
    const Raised asking(isAsking);
    QueryUnload.raise(isCancelled);
    return !isCancelled;
}

void Form::close() {
    if (!window) return;
    state = State::unloading;
    Unload.raise();
    // Before the window goes; otherwise the focus falls to another program.
    if (owner) ::EnableWindow(owner, TRUE);
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

void Form::setText(std::string_view caption) { SetTextOf(window, caption); }

void Form::setPointer(HCURSOR shape) {
    pointer = shape;
    ::SetCursor(shape ? shape : ::LoadCursorW(nullptr, IDC_ARROW));
}

void Form::setMenuItemEnabled(int command, bool isEnabled) {
    ::EnableMenuItem(::GetMenu(window), command, MF_BYCOMMAND | (isEnabled ? MF_ENABLED : MF_GRAYED));
}

void Form::setToolTipsShown(bool isShown) const {
    if (toolTips) toolTips->setShown(isShown);
}

void Form::tipChanged(const FormPart& part) {
    if (toolTips) part.showTips(*toolTips);
}

void Form::focusLeaves(HWND leaving) {
    // Posted, so that the next control is chosen after the handler has finished enabling and disabling.
    if (leaving && ::GetFocus() == leaving)
        ::PostMessageW(window, focusLeftMessage, 0, reinterpret_cast<LPARAM>(leaving));
}
