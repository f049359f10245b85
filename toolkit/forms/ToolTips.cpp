#include "toolkit/forms/ToolTips.h"

#include <commctrl.h>

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

void ToolTips::set(HWND control, const std::string& text) const {
    TTTOOLINFOW tool{};
    tool.uFlags = TTF_SUBCLASS | TTF_IDISHWND;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    replace(tool, text);
}

void ToolTips::set(HWND control, int part, const RECT& area, const std::string& text) const {
    TTTOOLINFOW tool{};
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = control;
    tool.uId = part;
    tool.rect = area;
    replace(tool, text);
}

void ToolTips::setShown(bool isShown) const { ::SendMessageW(window, TTM_ACTIVATE, isShown, 0); }

void ToolTips::replace(TTTOOLINFOW& tool, const std::string& text) const {
    std::wstring writable = Wide(text);
    tool.cbSize = sizeof tool;
    tool.lpszText = writable.data();
    const auto argument = reinterpret_cast<LPARAM>(&tool);
    ::SendMessageW(window, TTM_DELTOOLW, 0, argument);
    if (!text.empty()) ::SendMessageW(window, TTM_ADDTOOLW, 0, argument);
}
