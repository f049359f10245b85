#include "toolkit/FocusMove.h"

void MoveFocusOn(HWND form, HWND left) {
    const HWND focus = ::GetFocus();
    if (focus && focus != form && focus != left) return;
    const bool isLeftUsable = ::IsWindowEnabled(left) && ::IsWindowVisible(left);
    const HWND next = isLeftUsable ? left : ::GetNextDlgTabItem(form, left, FALSE);
    ::SendMessageA(form, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
}
