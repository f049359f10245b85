#include "toolkit/forms/ToolTips.h"

#include <commctrl.h>

#include <algorithm>

#include "toolkit/platform/Text.h"

namespace {

/// A click on a tip hides it. Under Wine it would also bring it to the front, and the keys with it.
LRESULT CALLBACK StayBehind(HWND tip, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                            DWORD_PTR /*reference*/) {
    if (message == WM_MOUSEACTIVATE) return MA_NOACTIVATE;
    return ::DefSubclassProc(tip, message, wParam, lParam);
}

}  // namespace

ToolTips::ToolTips(HWND form)
    : form(form),
      window(::CreateWindowExW(
          WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr, ::GetModuleHandleW(nullptr), nullptr)) {
    ::SetWindowSubclass(window, StayBehind, 0, 0);
}

void ToolTips::set(HWND control, const std::string& text) {
    TTTOOLINFOW tool{};
    tool.uFlags = TTF_SUBCLASS | TTF_IDISHWND;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    change(tool, text);
}

void ToolTips::set(HWND control, int part, const RECT& area, const std::string& text) {
    TTTOOLINFOW tool{};
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = control;
    tool.uId = part;
    tool.rect = area;
    change(tool, text);
}

void ToolTips::setShown(bool isShown) const { ::SendMessageW(window, TTM_ACTIVATE, isShown, 0); }

ToolTips::Tip& ToolTips::tipOf(const TTTOOLINFOW& tool) {
    const auto found = std::ranges::find_if(
        tips, [&](const Tip& tip) { return tip.window == tool.hwnd && tip.number == tool.uId; });
    return found != tips.end() ? *found : tips.emplace_back(Tip{tool.hwnd, tool.uId, {}, {}});
}

void ToolTips::change(TTTOOLINFOW& tool, const std::string& text) {
    Tip& tip = tipOf(tool);
    if (tip.text == text && ::EqualRect(&tip.area, &tool.rect)) return;
    const bool isNew = tip.text.empty();
    tip.area = tool.rect;
    tip.text = text;
    std::wstring writable = Wide(text);
    tool.cbSize = sizeof tool;
    tool.lpszText = writable.data();
    const auto send = [&](UINT message) {
        ::SendMessageW(window, message, 0, reinterpret_cast<LPARAM>(&tool));
    };
    if (text.empty()) {
        send(TTM_DELTOOLW);
    } else if (isNew) {
        send(TTM_ADDTOOLW);
    } else {
        // In its place among the others, so that overlapping areas keep their order, and without hiding one.
        send(TTM_NEWTOOLRECTW);
        send(TTM_UPDATETIPTEXTW);
    }
}
