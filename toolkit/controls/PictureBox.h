// How does a form show a plain coloured area?
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/controls/Control.h"
#include "toolkit/forms/Event.h"

/// A window of class "PictureBox"; it can hold other controls. Once it has a colour of its own it has an edge
/// too, so that it shows on a form of the same colour.
class PictureBox : public Control {
public:
    using Control::Control;
    using Control::hold;

    // The mouse over the box, or anywhere while the box has captured it. Nothing is raised while the box or
    // its container is disabled.
    Event<int> MouseDown;      ///< the button that was pressed
    Event<int> MouseMove;      ///< the buttons that are held
    Event<int> MouseUp;        ///< the button that was released
    Event<> MouseCaptureLost;  ///< the box had captured the mouse and has lost it

    static void registerClass() { registerOwnClass("PictureBox"); }

    COLORREF backColor() const { return back.value_or(::GetSysColor(COLOR_BTNFACE)); }
    void setBackColor(COLORREF color);

    /// Draws a frame while the control that belongs to the box has the focus.
    void setFocusFrame(bool isWanted);

    /// What screen readers say of it.
    void setText(std::string_view text);

    /// Paints now what has changed. Windows itself does so only when no input waits.
    void paintNow() const;

    void captureMouse();

private:
    void attached() override { receive(); }
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void paint() const;
    void raiseMouse(UINT message, WPARAM wParam) const;

    std::optional<COLORREF> back;  // the form's colour until one is set
    std::string spoken;
    bool isFocusFramed = false;
};
