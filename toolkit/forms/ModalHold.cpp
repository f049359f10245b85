#include "toolkit/forms/ModalHold.h"

#include <algorithm>

namespace {

bool IsOwned(HWND window, HWND by) {
    HWND owner = ::GetWindow(window, GW_OWNER);
    while (owner && owner != by) owner = ::GetWindow(owner, GW_OWNER);
    return owner != nullptr;
}

}  // namespace

void ModalHold::join(HWND form) {
    // Of several modal windows the oldest closes last.
    const auto waiting = std::ranges::find_if(members, [form](const Member& member) {
        return !::IsWindowEnabled(member.window) && !IsOwned(form, member.window);
    });
    Member joining = {form, nullptr};
    if (waiting != members.end()) joining.holder = waiting->holder ? waiting->holder : waiting->window;
    members.push_back(joining);
    if (joining.holder) ::EnableWindow(form, FALSE);
}

void ModalHold::leave(HWND form) {
    std::erase_if(members, [form](const Member& member) { return member.window == form; });
    letGo(form);
}

void ModalHold::changed(HWND form, bool isEnabled) {
    if (isEnabled) {
        letGo(form);
        return;
    }
    const auto self = std::ranges::find(members, form, &Member::window);
    if (self == members.end() || self->holder) return;  // its holder has disabled the others already
    for (Member& member : members) {
        if (member.window == form || !::IsWindowEnabled(member.window) || IsOwned(member.window, form))
            continue;
        member.holder = form;
        ::EnableWindow(member.window, FALSE);
    }
}

void ModalHold::letGo(HWND holder) {
    for (Member& member : members) {
        if (member.holder != holder) continue;
        member.holder = nullptr;
        ::EnableWindow(member.window, TRUE);
    }
}
