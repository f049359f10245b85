// How does the user set red, green and blue?
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/Color.h"
#include "mainwindow/panels/ColorTarget.h"
#include "mainwindow/panels/EditState.h"
#include "toolkit/controls/Buttons.h"
#include "toolkit/controls/ControlArray.h"
#include "toolkit/controls/ScrollBar.h"
#include "toolkit/controls/TextBox.h"

/// The three sliders, which are the authority for the current colour, and the typed values beside them.
class ChannelEditors {
public:
    ChannelEditors(Form& form, EditState& edit, ColorTarget& target);

    /// At load: limits, tool tips, decimal mode.
    void Prepare();

    /// Sets red, green and blue in this order. While sliders apply, each one that changes applies the
    /// colour of all three.
    void SetSliders(const Color& color);
    Color SliderColor() const;

    /// Makes room for something else in the sliders' place; when they come back, the focus is where it was.
    void HideSliders();
    void ShowSliders();

    /// Writes the colour into the boxes; what was typed but not applied is lost.
    void ShowValues(const Color& color);

private:
    using ParseChannel = std::int16_t (*)(std::string_view text);

    void hsbColor_Change();
    void txtSet_Change();
    void txtSet_GotFocus(int channel);
    void txtSet_EnterKey(int channel);
    void txtSet_KeyPress(wchar_t& character);
    void txtSet_Undone(int channel);
    void cmdSetColor_Click();
    void optSetMode_Click();

    void ApplyDecimalValues();
    void ApplyHexValues();
    bool ParseValues(ParseChannel parse, const char* refusal, Color& color);
    void Refuse(TextBox& failing, const char* refusal);
    void EndTyping();
    void ForgetTyping();
    void EnableControls();

    Form& form;
    EditState& edit;
    ColorTarget& target;

    ScrollBar hsbRed;
    ScrollBar hsbGreen;
    ScrollBar hsbBlue;
    ScrollBar* sliderWithFocus = nullptr;  ///< while the sliders are hidden
    ControlArray<TextBox, 3> txtSet;       ///< txtSetRed, txtSetGreen and txtSetBlue
    Button cmdSetColor;
    OptionGroup mode;
    OptionButton optSetDec;
    OptionButton optSetHex;
    bool editorSync = true;         ///< a change of a typed value is the user's
    bool areValuesWaiting = false;  ///< what was typed is to be applied
    bool isModeLocked = false;      ///< from the first typed character until Set or Enter
};
