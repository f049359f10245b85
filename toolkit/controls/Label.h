// How does a form show text that the user cannot edit?
#pragma once

#include <string>
#include <string_view>

#include "toolkit/controls/Control.h"
#include "toolkit/platform/Handles.h"

/// Static text that the program sets. It never has an access key; captions that have one need no Label.
class Label : public Control {
public:
    using Control::Control;

    const std::string& text() const { return shown; }
    void setText(std::string_view text);

    /// Shows the text in this font; height in pixels at 96 DPI. Call it while the form is loaded.
    void setFont(const char* face, int height);

    /// Uses the colours of a field instead of the form's. Call it before the form is loaded.
    void lookLikeField() { isField = true; }

private:
    void attached() override;
    HBRUSH onColor(HDC context) override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void rescaled() override;

    std::string ownFace;
    int ownHeight = 0;
    OwnedFont font;
    bool isField = false;
    std::string shown;
};
