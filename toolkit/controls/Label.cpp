#include "toolkit/controls/Label.h"

#include "toolkit/forms/Form.h"
#include "toolkit/platform/Fonts.h"
#include "toolkit/platform/WindowText.h"

void Label::setText(std::string_view text) {
    if (shown == text || !handle()) return;
    shown = text;
    SetTextOf(handle(), shown);
}

void Label::attached() {
    shown = WindowText(handle());  // the template's, not what an earlier window showed
    subclass();
}

void Label::setFont(const char* face, int height) {
    ownFace = face;
    ownHeight = height;
    rescaled();
}

void Label::rescaled() {
    if (ownFace.empty()) return;
    font = FontOfHeight(ownFace, form.scaled(ownHeight));
    send(WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
}

HBRUSH Label::onColor(HDC context) {
    if (!isField) return nullptr;
    ::SetTextColor(context, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(context, ::GetSysColor(COLOR_WINDOW));
    return ::GetSysColorBrush(COLOR_WINDOW);
}

/// The text is often the user's: "&H" in it is no access key that Alt+H could follow. As Windows does with a
/// text box, it passes over a control that wants characters.
LRESULT Label::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_GETDLGCODE ? DLGC_WANTCHARS : Control::onMessage(message, wParam, lParam);
}
