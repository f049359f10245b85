#include "toolkit/controls/ListBox.h"

#include "toolkit/platform/Text.h"

#include "toolkit/forms/Form.h"

namespace {

/// In pixels at 96 DPI. The heights of fonts are rounded, so that as many rows would not fit at every
/// scaling.
constexpr int rowHeight = 16;

}  // namespace

void ListBox::attached() {
    subclass();
    rescaled();
}

void ListBox::rescaled() { send(LB_SETITEMHEIGHT, 0, form.scaled(rowHeight)); }

void ListBox::addItem(std::string_view text) {
    send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(text).c_str()));
}

void ListBox::setIndex(int index) {
    const int before = this->index();
    send(LB_SETCURSEL, static_cast<WPARAM>(index));
    // cppcheck-suppress knownConditionTrueFalse  // the call before has changed what the window answers
    if (this->index() != before) Click.raise();
}

void ListBox::onCommand(int /*id*/, int code) {
    if (code != LBN_SELCHANGE || !isEnabled()) return;
    hasToldOfClick = true;
    Click.raise();
}

LRESULT ListBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN) hasToldOfClick = false;
    const LRESULT result = Control::onMessage(message, wParam, lParam);
    if (message == WM_LBUTTONUP && !hasToldOfClick) {
        // A click on the current row does not change the selection, so Wine does not report it.
        const LRESULT row = send(LB_ITEMFROMPOINT, 0, lParam);
        if (HIWORD(row) == 0 && LOWORD(row) == index()) Click.raise();
        hasToldOfClick = true;
    }
    return result;
}
