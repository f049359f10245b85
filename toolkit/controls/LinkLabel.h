// How does a form show an address that can be followed?
#pragma once

#include <string>
#include <string_view>

#include "toolkit/controls/Control.h"
#include "toolkit/forms/Event.h"
#include "toolkit/platform/Handles.h"

/// A window of class "LinkLabel": one line of text that looks like a link and is clicked by the mouse, Enter
/// or Space. Only the text is the link, not the room beside it.
class LinkLabel : public Control {
public:
    using Control::Control;

    Event<> Click;  ///< not raised while the label or its container is disabled

    static void registerClass() { registerOwnClass("LinkLabel"); }

    /// The text as it is now: another program may have changed it.
    std::string text() const;
    void setText(std::string_view text);

private:
    void attached() override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void underline(HFONT plain);
    void paint() const;
    void press();
    void release(POINT point);
    RECT textArea() const;
    bool isOnText(POINT point) const;

    OwnedFont font;
};
