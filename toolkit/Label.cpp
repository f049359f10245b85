#include "toolkit/Label.h"

void Label::setText(std::string_view text) {
    if (shown == text || !handle()) return;
    shown = text;
    ::SetWindowTextA(handle(), shown.c_str());
}

HBRUSH Label::onColor(HDC context) {
    if (!isField) return nullptr;
    ::SetTextColor(context, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(context, ::GetSysColor(COLOR_WINDOW));
    return ::GetSysColorBrush(COLOR_WINDOW);
}

void Label::attached() {
    if (isField) subclass();
}

/// A field shows text as it is: no character of it is a key that leads somewhere, "&H" of Alt+H for instance.
LRESULT Label::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_GETDLGCODE ? 0 : Control::onMessage(message, wParam, lParam);
}
