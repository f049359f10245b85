#include "toolkit/Label.h"

#include "toolkit/Form.h"
#include "toolkit/WindowText.h"

void Label::setText(std::string_view text) {
    if (shown == text || !handle()) return;
    shown = text;
    ::SetWindowTextA(handle(), shown.c_str());
}

/// The template's text, whatever an earlier window has shown.
void Label::attached() { shown = WindowText(handle()); }

void Label::setFont(const char* face, int height) {
    ownFace = face;
    ownHeight = height;
    rescaled();
}

void Label::rescaled() {
    if (ownFace.empty()) return;
    LOGFONTA wanted{};
    wanted.lfHeight = -form.scaled(ownHeight);
    wanted.lfCharSet = DEFAULT_CHARSET;
    wanted.lfQuality = CLEARTYPE_QUALITY;
    ownFace.copy(wanted.lfFaceName, LF_FACESIZE - 1);
    font = OwnedFont(::CreateFontIndirectA(&wanted));
    send(WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
}

HBRUSH Label::onColor(HDC context) {
    if (!isField) return nullptr;
    ::SetTextColor(context, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(context, ::GetSysColor(COLOR_WINDOW));
    return ::GetSysColorBrush(COLOR_WINDOW);
}
