// How does a form take a line of text?
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "toolkit/controls/Control.h"
#include "toolkit/forms/Event.h"

/// Positions in units of UTF-16, from 0: the first selected one and the one after the last. Without a
/// selection both are the caret's.
struct Selection {
    std::size_t start;
    std::size_t end;
};

/// Its text consists of what the system's ANSI code page holds: any other character, whoever puts it there,
/// is
/// "?" before Change is raised.
class TextBox : public Control {
public:
    using Control::Control;

    Event<> Change;  ///< the text has changed, by the user or by setText
    Event<> Click;   ///< on release of the button
    Event<> DblClick;
    Event<> GotFocus;
    Event<> LostFocus;
    Event<> EnterKey;
    Event<> Undone;  ///< Ctrl+Z has taken typing back
    Event<wchar_t&>
        KeyPress;  ///< a typed character, which the handler may replace; none that takes two units

    std::string text() const;
    /// Raises Change when the text differs.
    void setText(std::string_view text);
    /// Limits typing and pasting, but not setText.
    void setMaxLength(int characters) { send(EM_LIMITTEXT, characters); }

    /// What has been typed cannot be taken back any more.
    void forgetTyping() { send(EM_EMPTYUNDOBUFFER); }

    void selectAll() { send(EM_SETSEL, 0, -1); }
    /// Selects the whole text if the focus has come by the Tab key.
    void selectAllIfTabbed();
    Selection selection() const;
    /// Selects, and scrolls to the end of the selection.
    void setSelection(const Selection& wanted);
    void setCaretToEnd();

    COLORREF backColor() const { return back.value_or(::GetSysColor(COLOR_WINDOW)); }
    /// A light colour, shown under black text; none for the system's colours of fields.
    void setBackColor(std::optional<COLORREF> color);

private:
    void attached() override;
    void onCommand(int id, int code) override;
    bool keepsKey(WPARAM key) const override;
    HBRUSH onColor(HDC context) override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void afterwards(UINT message, WPARAM wParam, LPARAM lParam);
    void moveLine(UINT painting) const;
    void setMargins() const;
    void onFocus(HWND from);
    LRESULT onCharacter(wchar_t unit, LPARAM lParam);
    void takeBack();
    /// False when Windows may paste the text as it is.
    bool pasteCharacters();
    /// Puts text in the place of the selection, as far as there is room.
    void insert(std::wstring text);
    void keepWithinAnsi();
    void onRelease(LPARAM position);

    mutable std::optional<std::string> known;  // the window's text, once it has been read
    std::optional<COLORREF> back;
    wchar_t firstHalf = L'\0';  // of a character that is typed in two
    bool isSettingText = false;
    bool isDoubleClick = false;
    bool isFromNeighbour = false;  // the focus, from another control of the form
};
