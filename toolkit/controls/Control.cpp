#include "toolkit/controls/Control.h"

#include <map>

#include "toolkit/forms/Form.h"
#include "toolkit/forms/ToolTips.h"
#include "toolkit/platform/Text.h"

namespace {

/// The controls that receive their windows' messages.
std::map<HWND, Control*> receivers;

}  // namespace

Control::Control(Form& form, int id) : FormPart(id), form(form) { form.join(*this); }

Control::~Control() {
    form.leave(*this);
    if (original) ::SetWindowLongPtrW(handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
    receivers.erase(handle());
}

void Control::setEnabled(bool isEnabled) {
    if (isEnabled == this->isEnabled()) return;
    if (!isEnabled) form.focusLeaves(handle());
    ::EnableWindow(handle(), isEnabled);
}

bool Control::isUsable() const {
    HWND part = handle();
    while (part && ::IsWindowEnabled(part)) {
        if (part == form.handle()) return true;
        part = ::GetParent(part);
    }
    return false;
}

void Control::setVisible(bool isVisible) {
    if (!isVisible) form.focusLeaves(handle());
    ::ShowWindow(handle(), isVisible ? SW_SHOWNA : SW_HIDE);
}

void Control::setFocus() {
    if (handle()) ::SendMessageW(form.handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(handle()), TRUE);
}

void Control::setToolTip(std::string_view text) {
    tip = text;
    form.tipChanged(*this);
}

void Control::showTips(ToolTips& toolTips) const { toolTips.set(handle(), tip); }

void Control::detaching() {
    receivers.erase(handle());
    original = nullptr;
}

void Control::repaint(bool withGround) const {
    // Windows takes no window for all windows on the screen. A hidden one is painted when it is shown.
    if (::IsWindowVisible(handle())) ::InvalidateRect(handle(), nullptr, withGround);
}

void Control::registerOwnClass(const char* name) {
    WNDCLASSW own{};
    own.lpfnWndProc = &Control::proc;
    own.hInstance = ::GetModuleHandleW(nullptr);
    own.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    const std::wstring className = Wide(name);
    own.lpszClassName = className.c_str();
    ::RegisterClassW(&own);
}

void Control::receive() {
    receivers[handle()] = this;
    original = ::DefWindowProcW;
}

void Control::subclass() {
    receivers[handle()] = this;
    original = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Control::proc)));
}

LRESULT CALLBACK Control::proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return TrappedAnswer([&] { return deliver(window, message, wParam, lParam); });
}

LRESULT Control::deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto receiver = receivers.find(window);
    // A window of the program's own classes sends its first messages before its control is attached.
    if (receiver == receivers.end()) return ::DefWindowProcW(window, message, wParam, lParam);
    return receiver->second->onMessage(message, wParam, lParam);
}

LRESULT Control::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!original) return 0;  // a handler of this very message has unloaded the form
    return ::CallWindowProcW(original, handle(), message, wParam, lParam);
}
