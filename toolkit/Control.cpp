#include "toolkit/Control.h"

#include <unordered_map>

#include "toolkit/Form.h"
#include "toolkit/ToolTips.h"

namespace {

/// Where a window finds the control that receives its messages.
std::unordered_map<HWND, Control*> receivers;

}  // namespace

Control::Control(Form& form, int id) : form(form), id(id) { form.controls.add(*this); }

Control::~Control() {
    form.controls.remove(*this);
    if (original) ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
    detach();
}

void Control::setEnabled(bool isEnabled) {
    if (isEnabled == this->isEnabled()) return;
    if (!isEnabled) form.focusLeaves(window);
    ::EnableWindow(window, isEnabled);
}

bool Control::isUsable() const {
    HWND part = window;
    while (part && ::IsWindowEnabled(part)) {
        if (part == form.handle()) return true;
        part = ::GetParent(part);
    }
    return false;
}

void Control::setVisible(bool isVisible) {
    if (!isVisible) form.focusLeaves(window);
    ::ShowWindow(window, isVisible ? SW_SHOWNA : SW_HIDE);
}

void Control::setFocus() {
    if (window) ::SendMessageA(form.handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
}

void Control::setToolTip(std::string_view text) {
    tip = text;
    form.tipChanged(*this);
}

void Control::showTips(ToolTips& toolTips) const { toolTips.set(window, tip); }

void Control::attach(HWND created) {
    window = created;
    attached();
}

void Control::detach() {
    receivers.erase(window);
    window = nullptr;
    original = nullptr;
}

void Control::registerOwnClass(const char* name) {
    WNDCLASSA own{};
    own.lpfnWndProc = &Control::proc;
    own.hInstance = ::GetModuleHandleA(nullptr);
    own.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    own.lpszClassName = name;
    ::RegisterClassA(&own);
}

void Control::receive() {
    receivers[window] = this;
    original = ::DefWindowProcA;
}

void Control::subclass() {
    receivers[window] = this;
    original = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Control::proc)));
}

LRESULT CALLBACK Control::proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto receiver = receivers.find(window);
    // A window of an own class sends its first messages before its control is attached.
    if (receiver == receivers.end()) return ::DefWindowProcA(window, message, wParam, lParam);
    return receiver->second->onMessage(message, wParam, lParam);
}

LRESULT Control::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::CallWindowProcA(original, window, message, wParam, lParam);
}
