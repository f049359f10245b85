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
    virtual ~Control();

    bool isEnabled() const { return ::IsWindowEnabled(handle()) != FALSE; }
    /// Whether it and its containers are enabled. A disabled control gets no mouse input, but other programs
    /// can still send it messages.
    bool isUsable() const;
    bool hasFocus() const { return handle() && ::GetFocus() == handle(); }

    /// Moves the focus on to the next control if the disabled one had it.
    void setEnabled(bool isEnabled);
    /// Moves the focus on to the next control if the hidden one had it.
    void setVisible(bool isVisible);
    /// As the Tab key does: Windows selects the whole text of a box and updates the default button.
    void setFocus();

    void setToolTip(std::string_view text);

protected:
    Form& form;

    /// Repaints the whole window, and its background where Windows paints that.
    void repaint(bool withGround = false) const;

    /// Sends a message to the control's window.
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageW(handle(), message, wParam, lParam);
    }

    /// Registers a window class for controls that draw themselves.
    static void registerOwnClass(const char* name);

    /// Sends the messages of the window, whose class is the program's own, to onMessage.
    void receive();
    /// The same for a window of one of Windows' own classes.
    void subclass();

    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void detaching() override;
    void showTips(ToolTips& toolTips) const override;

    WNDPROC original = nullptr;
    std::string tip;
};
