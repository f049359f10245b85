// How does a form offer its commands as pictures?
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/controls/Control.h"
#include "toolkit/controls/IconPixels.h"
#include "toolkit/forms/Event.h"

/// A button with the number of its command; 0 makes it a separator.
struct ToolButton {
    int command;
    int icon;
    std::string_view tip;
    bool isChoice = false;  ///< of adjacent choices one at most is pressed, and stays pressed
};

/// Buttons with a picture and a tool tip each; a disabled button shows its tip too. Where the bar is a tab
/// stop, the arrow keys move from button to button, and Space and Enter press one.
class ToolBar : public Control {
public:
    using Control::Control;

    Event<int> ButtonClick;  ///< the button's command; not raised while the form is disabled

    /// Puts the buttons on the bar, all enabled, with the choice of that command pressed.
    void fill(std::span<const ToolButton> buttons, int pressed = 0);

    void setButtonEnabled(int command, bool isEnabled) { send(TB_ENABLEBUTTON, command, isEnabled); }
    bool isPressed(int command) const { return send(TB_ISBUTTONCHECKED, command) != 0; }
    void setButtonTip(int command, std::string_view tip);

private:
    void attached() override { subclass(); }
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool onKey(WPARAM key);
    void pressHot();
    void rescaled() override;
    void setSizes();
    void setGaps() const;
    void showTips(ToolTips& toolTips) const override;
    void onCommand(int id, int code) override;

    // They outlive the window, so that a form that is opened again need not make its pictures again.
    OwnedImages images;
    int drawnSize = 0;
    std::vector<int> icons;
    std::map<int, std::string> tips;
};
