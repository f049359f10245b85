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
