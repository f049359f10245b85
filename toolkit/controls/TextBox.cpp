#include "toolkit/controls/TextBox.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "core/Characters.h"
#include "toolkit/controls/Keys.h"
#include "toolkit/controls/MiddleLine.h"
#include "toolkit/forms/Form.h"
#include "toolkit/platform/Clipboard.h"
#include "toolkit/platform/FlagGuard.h"
#include "toolkit/platform/Text.h"
#include "toolkit/platform/WindowText.h"

namespace {

constexpr wchar_t controlZ = L'Z' - L'@';

bool IsHalf(wchar_t unit) { return IS_HIGH_SURROGATE(unit) || IS_LOW_SURROGATE(unit); }

}  // namespace

void TextBox::attached() {
    known.reset();
    firstHalf = L'\0';
    subclass();
    moveLine(SWP_NOREDRAW);  // it has not been painted yet
    setMargins();
}

void TextBox::setMargins() const {
    const int margin = form.scaled(1);  // the longest placeholder just fits between
    send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(margin, margin));
}

std::string TextBox::text() const {
    if (!known) known = WindowText(handle());
    return *known;
}

void TextBox::setText(std::string_view text) {
    const std::wstring wanted = WithinAnsi(Wide(text));
    if (this->text() == Utf8(wanted)) return;
    {
        const Raised setting(isSettingText);
        ::SetWindowTextW(handle(), wanted.c_str());
    }
    known.reset();
    if (handle()) Change.raise();
}

void TextBox::selectAllIfTabbed() {
    if (isFromNeighbour && ::GetKeyState(VK_TAB) < 0) selectAll();
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
    const auto end = static_cast<std::size_t>(::GetWindowTextLengthW(handle()));
    setSelection({end, end});
}

void TextBox::setBackColor(std::optional<COLORREF> color) {
    if (back == color) return;
    back = color;
    constexpr UINT withFrame = RDW_INVALIDATE | RDW_ERASE | RDW_FRAME;
    if (handle()) ::RedrawWindow(handle(), nullptr, nullptr, withFrame);
}

/// Windows asks for the client area again, which is as high as a line of the font.
void TextBox::moveLine(UINT painting) const {
    constexpr UINT inPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
    ::SetWindowPos(handle(), nullptr, 0, 0, 0, 0, inPlace | SWP_FRAMECHANGED | painting);
}

void TextBox::onCommand(int /*id*/, int code) {
    // Windows may or may not report a text that the program sets; setText raises Change itself.
    if (code != EN_CHANGE || isSettingText) return;
    keepWithinAnsi();
    known.reset();
    Change.raise();
}

/// Ctrl+Z, as long as there is typing of its own to take back.
bool TextBox::keepsKey(WPARAM key) const {
    return key == L'Z' && ::GetKeyState(VK_CONTROL) < 0 && send(EM_CANUNDO) != FALSE;
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
        case WM_CHAR: return onCharacter(static_cast<wchar_t>(wParam), lParam);
        case WM_PASTE:
            if (pasteCharacters()) return 0;
            break;
        case WM_LBUTTONDBLCLK: isDoubleClick = true; break;
        case WM_NCHITTEST:
            if (IsInsideOfEdge(handle(), {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) return HTCLIENT;
            break;
        default: break;
    }
    const LRESULT result = Control::onMessage(message, wParam, lParam);
    afterwards(message, wParam, lParam);
    return result;
}

/// When Windows has done its part.
void TextBox::afterwards(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCALCSIZE: KeepMiddleLine(handle(), *reinterpret_cast<RECT*>(lParam)); break;
        case WM_NCPAINT: PaintAroundLine(handle(), backColor()); break;
        case WM_SETFONT:
            moveLine(0);
            setMargins();  // a box measures them anew for each font
            break;
        case WM_SETFOCUS: onFocus(reinterpret_cast<HWND>(wParam)); break;
        case WM_KILLFOCUS: LostFocus.raise(); break;
        case WM_LBUTTONUP: onRelease(lParam); break;
        default: break;
    }
}

/// The Tab key comes from another control of the form; Alt+Tab, with the same key down, from another program.
void TextBox::onFocus(HWND from) {
    isFromNeighbour = ::IsChild(form.handle(), from) != FALSE;
    GotFocus.raise();
}

LRESULT TextBox::onCharacter(wchar_t unit, LPARAM lParam) {
    if (unit == L'\r' && EnterKey.isBound()) return 0;
    if (unit == controlZ && Undone.isBound()) {
        takeBack();
        return 0;
    }
    const wchar_t before = std::exchange(firstHalf, L'\0');
    if (IS_HIGH_SURROGATE(unit)) {
        firstHalf = unit;
        return 0;
    }
    if (before != L'\0' && IS_LOW_SURROGATE(unit)) {
        insert({before, unit});
        return 0;
    }
    wchar_t typed = unit;
    KeyPress.raise(typed);
    return Control::onMessage(WM_CHAR, WithinAnsi({&typed, 1}).front(), lParam);
}

void TextBox::takeBack() {
    if (!send(EM_UNDO)) return;
    Undone.raise();
}

/// Windows would paste characters that the code page does not hold, and half of one where the box ends. What
/// is replaced only afterwards comes back when the user takes the pasting back.
bool TextBox::pasteCharacters() {
    const std::wstring pasted = TextOnClipboard(handle());
    const bool arePlain = OutsideAnsi(pasted).empty() && std::ranges::none_of(pasted, IsHalf);
    if (!arePlain) insert(pasted.substr(0, pasted.find_first_of(L"\r\n")));
    return !arePlain;
}

void TextBox::insert(std::wstring text) {
    const auto [start, end] = selection();
    const auto limit = static_cast<std::size_t>(send(EM_GETLIMITTEXT));
    const std::size_t kept = ::GetWindowTextLengthW(handle()) - (end - start);
    text = Wide(FirstCharacters(Utf8(WithinAnsi(text)), limit - std::min(kept, limit)));
    if (!text.empty()) send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

/// A palette file is in the system's code page: the user sees at once what it cannot hold, wherever the text
/// has come from.
void TextBox::keepWithinAnsi() {
    std::vector<CharacterPlace> outside = OutsideAnsi(WideWindowText(handle()));
    if (outside.empty()) return;
    const Raised setting(isSettingText);
    auto [start, end] = selection();
    for (; !outside.empty(); outside.pop_back()) {
        const CharacterPlace& last = outside.back();
        send(EM_SETSEL, last.start, static_cast<LPARAM>(last.start + last.length));
        send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"?"));
        if (start > last.start) start -= last.length - 1;
        if (end > last.start) end -= last.length - 1;
    }
    send(EM_SETSEL, start, static_cast<LPARAM>(end));
}

void TextBox::onRelease(LPARAM position) {
    POINT point = {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
    ::ClientToScreen(handle(), &point);
    const bool isInside = IsInsideOfEdge(handle(), point);
    const bool wasDoubleClick = isDoubleClick;
    isDoubleClick = false;
    if (!isInside) return;
    if (wasDoubleClick) {
        DblClick.raise();
    } else {
        Click.raise();
    }
}
