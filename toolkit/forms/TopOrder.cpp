#include "toolkit/forms/TopOrder.h"

#include <algorithm>

#include "toolkit/platform/Handles.h"

namespace {

void Raise(HWND form, bool isOnTop) {
    ::SetWindowPos(form, isOnTop ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace

void TopOrder::join(HWND form) {
    forms.push_back(form);
    if (kept) Raise(form, true);
}

void TopOrder::leave(HWND form) {
    std::erase(forms, form);
    if (form == kept) kept = nullptr;
}

void TopOrder::keep(HWND form, bool isOnTop) {
    kept = nullptr;  // while they are put in order
    // Wine puts a form behind the tool tips that it owns, and there it is on top only if such a window
    // follows.
    const Owned<HWND, &::DestroyWindow> follower(
        ::CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
    Raise(follower.get(), true);
    Raise(form, isOnTop);
    for (const HWND other : forms) {
        if (other != form) Raise(other, isOnTop);
    }
    if (isOnTop) kept = form;
}

void TopOrder::end() {
    if (kept) keep(kept, false);
}

void TopOrder::moving(HWND form, WINDOWPOS& place) const {
    if (form != kept || (place.flags & SWP_NOZORDER)) return;
    // From the lowest window upwards, the first other form.
    for (HWND above = ::GetWindow(form, GW_HWNDLAST); above; above = ::GetWindow(above, GW_HWNDPREV)) {
        if (above == form || std::ranges::find(forms, above) == forms.end()) continue;
        place.hwndInsertAfter = above;
        return;
    }
}
