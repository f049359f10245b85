// How does a form take a line of text?
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "toolkit/controls/Control.h"
#include "toolkit/forms/Event.h"

/// Positions in characters, from 0: the first selected one and the one after the last. Without a selection
/// both are the caret's.
struct Selection {
    std::size_t start;
    std::size_t end;
};

class TextBox : public Control {
public:
    using Control::Control;

    Event<> Change;  ///< the text has changed, by the user or by setText
    Event<> Click;   ///< on release of the button
    Event<> DblClick;
    Event<> GotFocus;
    Event<> LostFocus;
    Event<> EnterKey;
    Event<char&> KeyPress;  ///< a typed character, which the handler may replace

    std::string text() const;
    /// Raises Change when the text differs.
    void setText(std::string_view text);
    /// Limits typing and pasting, but not setText.
    void setMaxLength(int characters) { send(EM_LIMITTEXT, characters); }

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
    HBRUSH onColor(HDC context) override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT onCharacter(WPARAM character, LPARAM lParam);
    void onRelease(LPARAM position);

    mutable std::optional<std::string> known;  // the window's text, once it has been read
    std::optional<COLORREF> back;
    bool isSettingText = false;
    bool isDoubleClick = false;
};
