#include "toolkit/Label.h"

#include "toolkit/WindowText.h"

void Label::setText(std::string_view text) {
    if (shown == text || !handle()) return;
    shown = text;
    ::SetWindowTextA(handle(), shown.c_str());
}

/// The template's text, whatever an earlier window has shown.
void Label::attached() { shown = WindowText(handle()); }

HBRUSH Label::onColor(HDC context) {
    if (!isField) return nullptr;
    ::SetTextColor(context, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(context, ::GetSysColor(COLOR_WINDOW));
    return ::GetSysColorBrush(COLOR_WINDOW);
}
