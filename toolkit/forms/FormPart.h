// What does a form know of each of its controls?
#pragma once

#include "toolkit/platform/Platform.h"

class ToolTips;

/// A control as its form sees it. The form creates its window and passes on its messages.
class FormPart {
public:
    FormPart(const FormPart&) = delete;
    FormPart& operator=(const FormPart&) = delete;

    /// nullptr while the form has no window.
    HWND handle() const { return window; }

protected:
    /// id is the control's number in the form's template.
    explicit FormPart(int id) : id(id) {}
    ~FormPart() = default;

    /// Makes member's window a child of this one's. Call it before the form is loaded.
    void hold(FormPart& member) const { member.container = this; }

private:
    friend class Form;
    friend class FormParts;

    void attach(HWND created) {
        window = created;
        attached();
    }
    void detach() {
        detaching();
        window = nullptr;
    }

    virtual void attached() {}
    virtual void detaching() {}
    virtual void rescaled() {}
    virtual void showTips(ToolTips& /*toolTips*/) const {}
    virtual void onCommand(int /*id*/, int /*code*/) {}
    virtual void onScroll(int /*code*/, int /*position*/) {}
    /// Whether it needs a pressed key itself, even if that is a shortcut of the form.
    virtual bool keepsKey(WPARAM /*key*/) const { return false; }
    virtual HBRUSH onColor(HDC /*context*/) { return nullptr; }

    int id;
    const FormPart* container = nullptr;
    HWND window = nullptr;
};
