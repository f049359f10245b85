#include "mainwindow/panels/ChannelEditors.h"

#include <string>

#include "core/ChannelText.h"
#include "resources/resource.h"
#include "support/Messages.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/forms/MsgBox.h"
#include "toolkit/platform/FlagGuard.h"

ChannelEditors::ChannelEditors(Form& form, EditState& edit, ColorTarget& target)
    : form(form),
      edit(edit),
      target(target),
      hsbRed(form, IDC_hsbRed, 0, 255),
      hsbGreen(form, IDC_hsbGreen, 0, 255),
      hsbBlue(form, IDC_hsbBlue, 0, 255),
      txtSet(form, IDC_txtSetRed),
      cmdSetColor(form, IDC_cmdSetColor),
      optSetDec(form, IDC_optSetDec, mode),
      optSetHex(form, IDC_optSetHex, mode) {
    // hsbRed_Change, hsbRed_Scroll and the other sliders' four events are all alike.
    for (ScrollBar* slider : {&hsbRed, &hsbGreen, &hsbBlue}) {
        slider->Change.bind(this, &ChannelEditors::hsbColor_Change);
        slider->Scroll.bind(this, &ChannelEditors::hsbColor_Change);
    }
    for (TextBox& box : txtSet) {
        box.Change.bind(this, &ChannelEditors::txtSet_Change);
        box.KeyPress.bind(this, &ChannelEditors::txtSet_KeyPress);
    }
    txtSet.bind(&TextBox::GotFocus, this, &ChannelEditors::txtSet_GotFocus);
    txtSet.bind(&TextBox::EnterKey, this, &ChannelEditors::txtSet_EnterKey);
    txtSet.bind(&TextBox::Undone, this, &ChannelEditors::txtSet_Undone);
    cmdSetColor.Click.bind(this, &ChannelEditors::cmdSetColor_Click);
    optSetDec.Click.bind(this, &ChannelEditors::optSetMode_Click);
    optSetHex.Click.bind(this, &ChannelEditors::optSetMode_Click);

    txtSet(0).setToolTip(messages::redTip);
    txtSet(1).setToolTip(messages::greenTip);
    txtSet(2).setToolTip(messages::blueTip);
    cmdSetColor.setToolTip(messages::setTip);
    optSetDec.setToolTip(messages::decimalTip);
    optSetHex.setToolTip(messages::hexTip);
}

void ChannelEditors::Prepare() {
    constexpr int longestValue = 3;
    for (TextBox& box : txtSet) box.setMaxLength(longestValue);
    optSetDec.turnOn();
}

void ChannelEditors::SetSliders(const Color& color) {
    const Color wanted = color;  // the first slider's event may change what color refers to
    hsbRed.setValue(wanted.red);
    hsbGreen.setValue(wanted.green);
    hsbBlue.setValue(wanted.blue);
}

Color ChannelEditors::SliderColor() const {
    return ColorOf(hsbRed.value(), hsbGreen.value(), hsbBlue.value());
}

void ChannelEditors::HideSliders() {
    // First of all: hiding a slider moves the focus on to the next.
    for (ScrollBar* slider : {&hsbRed, &hsbGreen, &hsbBlue}) {
        if (slider->hasFocus()) sliderWithFocus = slider;
    }
    for (ScrollBar* slider : {&hsbRed, &hsbGreen, &hsbBlue}) slider->setVisible(false);
}

void ChannelEditors::ShowSliders() {
    for (ScrollBar* slider : {&hsbRed, &hsbGreen, &hsbBlue}) slider->setVisible(true);
    if (sliderWithFocus && form.isFront()) sliderWithFocus->setFocus();
    sliderWithFocus = nullptr;
}

void ChannelEditors::hsbColor_Change() {
    if (edit.sliderSync) target.SetSelectedColor(SliderColor());
}

void ChannelEditors::ShowValues(const Color& color) {
    {
        const Cleared notTyping(editorSync);
        const std::array<int, 3> values = {color.red, color.green, color.blue};
        for (int channel = 0; channel < 3; ++channel) {
            const int value = values[channel];
            txtSet(channel).setText(optSetDec.value() ? std::to_string(value) : std::string(HexPairs[value]));
        }
        Yield();
    }
    if (areValuesWaiting) ForgetTyping();
    areValuesWaiting = false;
    EnableControls();
}

void ChannelEditors::txtSet_Change() {
    if (!editorSync) return;
    areValuesWaiting = true;
    isModeLocked = true;
    EnableControls();
}

void ChannelEditors::txtSet_GotFocus(int channel) { txtSet(channel).selectAllIfTabbed(); }

void ChannelEditors::txtSet_EnterKey(int channel) {
    cmdSetColor_Click();
    txtSet(channel).selectAll();
}

void ChannelEditors::txtSet_KeyPress(wchar_t& character) { ::CharUpperBuffW(&character, 1); }

/// A box would take its own undoing back the next time; here an earlier step is wanted then.
void ChannelEditors::txtSet_Undone(int channel) { txtSet(channel).forgetTyping(); }

void ChannelEditors::cmdSetColor_Click() {
    if (optSetDec.value()) {
        ApplyDecimalValues();
    } else {
        ApplyHexValues();
    }
}

void ChannelEditors::optSetMode_Click() {
    // Counts as a change of colour by the user: a name that the mark already has is highlighted.
    target.SetSelectedColor(SliderColor());
}

void ChannelEditors::ApplyDecimalValues() {
    Color typed;
    if (!ParseValues(ParseChannelDecimal, messages::decimalNotAllowed, typed)) return;
    Yield();
    SetSliders(typed);
    ForgetTyping();
    EndTyping();
}

void ChannelEditors::ApplyHexValues() {
    Color typed;
    if (!ParseValues(ParseChannelHex, messages::hexNotAllowed, typed)) return;
    SetSliders(typed);
    ForgetTyping();
    EndTyping();
}

/// Reads all three boxes. False when a value is not allowed; the first such box has then been refused.
bool ChannelEditors::ParseValues(ParseChannel parse, const char* refusal, Color& color) {
    std::array<int, 3> values{};
    for (int channel = 0; channel < 3; ++channel) {
        values[channel] = parse(txtSet(channel).text());
        if (values[channel] < 0) {
            Refuse(txtSet(channel), refusal);
            return false;
        }
    }
    color = ColorOf(values[0], values[1], values[2]);
    return true;
}

void ChannelEditors::Refuse(TextBox& failing, const char* refusal) {
    MsgBox(&form, refusal, MB_OK | MB_ICONEXCLAMATION, messages::title);
    Yield();
    failing.setFocus();
    failing.selectAll();
    EndTyping();
}

void ChannelEditors::EndTyping() {
    areValuesWaiting = false;
    isModeLocked = false;
    EnableControls();
}

/// What has been applied is a step of the whole window; what has been overwritten is gone.
void ChannelEditors::ForgetTyping() {
    for (TextBox& box : txtSet) box.forgetTyping();
}

void ChannelEditors::EnableControls() {
    cmdSetColor.setEnabled(areValuesWaiting);
    optSetDec.setEnabled(!isModeLocked);
    optSetHex.setEnabled(!isModeLocked);
}
