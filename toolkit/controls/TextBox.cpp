#include "toolkit/controls/TextBox.h"

#include <windowsx.h>

#include "toolkit/controls/Keys.h"
#include "toolkit/forms/Form.h"
#include "toolkit/platform/FlagGuard.h"
#include "toolkit/platform/WindowText.h"

void TextBox::attached() {
    known.reset();
    subclass();
    const int margin = form.scaled(1);  // the longest placeholder just fits between
    send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(margin, margin));
}

std::string TextBox::text() const {
    if (!known) known = WindowText(handle());
    return *known;
}

void TextBox::setText(std::string_view text) {
    const std::string wanted(text);
    if (this->text() == wanted) return;
    {
        const Raised setting(isSettingText);
        ::SetWindowTextA(handle(), wanted.c_str());
    }
    known.reset();
    if (handle()) Change.raise();
}

void TextBox::selectAllIfTabbed() {
    if (::GetKeyState(VK_TAB) < 0) selectAll();
}

Selection TextBox::selection() const {
    DWORD start = 0;
    DWORD end = 0;
    send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {start, end};
}

void TextBox::setSelection(const Selection& wanted) {
    send(EM_SETSEL, wanted.start, static_cast<LPARAM>(wanted.end));
    send(EM_SCROLLCARET);
}

void TextBox::setCaretToEnd() {
    const auto end = static_cast<std::size_t>(::GetWindowTextLengthA(handle()));
    setSelection({end, end});
}

void TextBox::setBackColor(std::optional<COLORREF> color) {
    if (back == color) return;
    back = color;
    repaint(true);
}

void TextBox::onCommand(int /*id*/, int code) {
    // Windows may or may not report a text that the program sets; setText raises Change itself.
    if (code != EN_CHANGE || isSettingText) return;
    known.reset();
    Change.raise();
}

HBRUSH TextBox::onColor(HDC context) {
    // The program's own back colours are light, so text on them must not follow a theme with light text.
    ::SetTextColor(context, back ? RGB(0, 0, 0) : ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(context, backColor());
    ::SetDCBrushColor(context, backColor());
    return static_cast<HBRUSH>(::GetStockObject(DC_BRUSH));
}

LRESULT TextBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE: {
            const LRESULT wants = Control::onMessage(message, wParam, lParam);
            return IsEnter(lParam) && EnterKey.isBound() ? wants | DLGC_WANTMESSAGE : wants;
        }
        case WM_KEYDOWN:
            if (wParam != VK_RETURN || !EnterKey.isBound()) break;
            EnterKey.raise();
            return 0;
        case WM_CHAR: return onCharacter(wParam, lParam);
        case WM_LBUTTONDBLCLK: isDoubleClick = true; break;
        default: break;
    }
    const LRESULT result = Control::onMessage(message, wParam, lParam);
    if (message == WM_SETFOCUS) GotFocus.raise();
    if (message == WM_KILLFOCUS) LostFocus.raise();
    if (message == WM_LBUTTONUP) onRelease(lParam);
    return result;
}

LRESULT TextBox::onCharacter(WPARAM character, LPARAM lParam) {
    if (character == '\r' && EnterKey.isBound()) return 0;
    auto typed = static_cast<char>(character);
    KeyPress.raise(typed);
    return Control::onMessage(WM_CHAR, static_cast<unsigned char>(typed), lParam);
}

void TextBox::onRelease(LPARAM position) {
    RECT area{};
    ::GetClientRect(handle(), &area);
    const bool isInside = ::PtInRect(&area, {GET_X_LPARAM(position), GET_Y_LPARAM(position)}) != FALSE;
    const bool wasDoubleClick = isDoubleClick;
    isDoubleClick = false;
    if (!isInside) return;
    if (wasDoubleClick) {
        DblClick.raise();
    } else {
        Click.raise();
    }
}
