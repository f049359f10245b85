#include "toolkit/forms/ToolTips.h"

ToolTips::ToolTips(HWND form)
    : form(form),
      window(::CreateWindowExA(
          WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr, ::GetModuleHandleA(nullptr), nullptr)) {
}

void ToolTips::set(HWND control, const std::string& text) const {
    TTTOOLINFOA tool{};
    tool.uFlags = TTF_SUBCLASS | TTF_IDISHWND;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    replace(tool, text);
}

void ToolTips::set(HWND control, int part, const RECT& area, const std::string& text) const {
    TTTOOLINFOA tool{};
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = control;
    tool.uId = part;
    tool.rect = area;
    replace(tool, text);
}

void ToolTips::setShown(bool isShown) const { ::SendMessageA(window, TTM_ACTIVATE, isShown, 0); }

void ToolTips::replace(TTTOOLINFOA& tool, const std::string& text) const {
    std::string writable = text;
    tool.cbSize = sizeof tool;
    tool.lpszText = writable.data();
    const auto argument = reinterpret_cast<LPARAM>(&tool);
    ::SendMessageA(window, TTM_DELTOOLA, 0, argument);
    if (!text.empty()) ::SendMessageA(window, TTM_ADDTOOLA, 0, argument);
}
