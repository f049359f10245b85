// What do all controls share?
#pragma once

#include <string>
#include <string_view>

#include "toolkit/forms/FormPart.h"
#include "toolkit/platform/Platform.h"

class Form;

/// One control of a form. It outlives its window: while there is none, calls do nothing.
class Control : public FormPart {
public:
    /// id is the control's number in the form's template.
    Control(Form& form, int id);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    ~Control() override;

    bool isEnabled() const { return ::IsWindowEnabled(handle()) != FALSE; }
    /// Whether it and all that it stands in is enabled: what is not gets no mouse, but messages of others.
    bool isUsable() const;
    bool hasFocus() const { return handle() && ::GetFocus() == handle(); }

    /// When it has the focus and is disabled, the focus moves on to the next control.
    void setEnabled(bool isEnabled);
    /// When it has the focus and is hidden, the focus moves on to the next control.
    void setVisible(bool isVisible);
    /// As the Tab key does: the platform selects a box's whole text and sees to the default button.
    void setFocus();

    void setToolTip(std::string_view text);

protected:
    Form& form;

    /// Has the whole window painted anew; its ground as well, if Windows paints that.
    void repaint(bool withGround = false) const;

    /// Sends the window a message of Windows.
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageA(handle(), message, wParam, lParam);
    }

    /// Registers a window class without behaviour of its own, for controls that draw themselves.
    static void registerOwnClass(const char* name);

    /// Makes onMessage the receiver of the messages of a window whose class is the program's own.
    void receive();
    /// The same for a window of the platform's.
    void subclass();

    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void detaching() override;
    void showTips(ToolTips& toolTips) const override;

    WNDPROC original = nullptr;
    std::string tip;
};
