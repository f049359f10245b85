#include "mainwindow/panels/ColorMarks.h"

#include <optional>

#include "core/ChannelText.h"
#include "core/ColorTables.h"
#include "resources/resource.h"
#include "support/Messages.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/platform/FlagGuard.h"

namespace {

constexpr COLORREF nameHighlight = RGB(255, 250, 205);

}  // namespace

ColorMarks::ColorMarks(Form& form, Marks& marks, EditState& edit, ChannelEditors& channels,
                       ColorTarget& target)
    : marks(marks),
      edit(edit),
      channels(channels),
      target(target),
      txtName(form, IDC_txtName),
      optColor(form, IDC_optColor, selection),
      picSampleContainer(form, IDC_picSampleContainer),
      picSample(form, IDC_picSample),
      lblColorProp(form, IDC_lblColorProp) {
    optColor.bind(&OptionButton::Click, this, &ColorMarks::optColor_Click);
    optColor.bind(&OptionButton::GotFocus, this, &ColorMarks::optColor_GotFocus);
    optColor.bind(&OptionButton::LostFocus, this, &ColorMarks::optColor_LostFocus);
    txtName.bind(&TextBox::Change, this, &ColorMarks::txtName_Change);
    txtName.bind(&TextBox::Click, this, &ColorMarks::txtName_Click);
    txtName.bind(&TextBox::DblClick, this, &ColorMarks::txtName_DblClick);
    txtName.bind(&TextBox::GotFocus, this, &ColorMarks::txtName_GotFocus);
    txtName.bind(&TextBox::LostFocus, this, &ColorMarks::txtName_LostFocus);
    txtName.bind(&TextBox::Undone, this, &ColorMarks::txtName_Undone);
    for (PictureBox& sample : picSample) picSampleContainer.hold(sample);
    for (TextBox& box : txtName) box.setToolTip(messages::nameTip);
    for (OptionButton& option : optColor) option.setToolTip(messages::markTip);
}

void ColorMarks::Prepare() {
    for (TextBox& box : txtName) box.setMaxLength(longestName);
}

void ColorMarks::ApplyPalette(const Palette& palette) {
    for (int mark = markCount - 1; mark >= 0; --mark) {
        txtName(mark).setText(palette.names[mark]);
        ShowMark(mark, palette.colors[mark]);
        // The name as the box shows it, so that a palette just opened counts as unchanged.
        marks.savedMarkName[mark] = txtName(mark).text();
        marks.savedMarkColor[mark] = palette.colors[mark];
    }
    Change.raise();
}

MarkState ColorMarks::State() const {
    MarkState state = {Shown(), {}, marks.selectedMark};
    for (int mark = 0; mark < markCount; ++mark) {
        state.isHighlighted[mark] = txtName(mark).backColor() == nameHighlight;
    }
    return state;
}

void ColorMarks::Restore(const MarkState& state) {
    const Raised filling(edit.nameFillInProgress);  // a placeholder that was there may come back
    for (int mark = 0; mark < markCount; ++mark) {
        if (Name(mark) != state.shown.names[mark]) Rename(mark, state.shown.names[mark]);
        ShowMark(mark, state.shown.colors[mark]);
        if (state.isHighlighted[mark]) {
            txtName(mark).setBackColor(nameHighlight);
        } else {
            txtName(mark).setBackColor(std::nullopt);
        }
    }
    Select(state.selectedMark);
}

void ColorMarks::ForgetTyping() {
    for (TextBox& box : txtName) box.forgetTyping();
}

void ColorMarks::Select(int mark) {
    optColor(mark).turnOn();
    marks.selectedMark = mark;
    Change.raise();
}

void ColorMarks::Choose(int mark) {
    if (optColor(mark).value()) return;
    optColor(mark).turnOn();
    optColor_Click(mark);
}

Color ColorMarks::SampleColor(int mark) const {
    return Unpack(static_cast<PackedColor>(picSample(mark).backColor()));
}

MarkNames ColorMarks::Names() const {
    MarkNames names;
    for (int mark = 0; mark < markCount; ++mark) names[mark] = Name(mark);
    return names;
}

void ColorMarks::Rename(int mark, std::string_view name) {
    SetName(mark, name);
    txtName(mark).setCaretToEnd();
}

void ColorMarks::WhitenNames() {
    for (TextBox& box : txtName) box.setBackColor(std::nullopt);
    Change.raise();
}

void ColorMarks::EnableSelectedSample() {
    for (int mark = 0; mark < markCount; ++mark) {
        const bool isSelected = mark == marks.selectedMark;
        picSample(mark).setToolTip(isSelected ? messages::sampleTip : "");
        picSample(mark).setEnabled(isSelected);
    }
}

void ColorMarks::RefreshProperties() {
    for (int mark = 0; mark < markCount; ++mark) {
        lblColorProp(mark).setText(ColorPropertyLetters(SampleColor(mark)));
    }
}

void ColorMarks::PaintSelected(const Color& color) {
    ShowMark(marks.selectedMark, color);
    Change.raise();
}

void ColorMarks::ShowMark(int mark, const Color& color) {
    picSample(mark).setBackColor(Pack(color));
    DescribeSample(mark);
    marks.markColor[mark] = color;
}

/// For screen readers: the name and the colour.
void ColorMarks::DescribeSample(int mark) {
    picSample(mark).setText(Name(mark) + " " + HexText(SampleColor(mark)));
}

void ColorMarks::HighlightRenamed() {
    TextBox& box = txtName(marks.selectedMark);
    const std::string name = box.text();
    if (name == messages::noName || box.backColor() == nameHighlight || !edit.userColorChange) return;
    if (name != messages::notJavaScript) box.setBackColor(nameHighlight);
    for (TextBox& other : txtName) {
        if (other.text() == messages::notJavaScript) other.setText(messages::noName);
    }
    Change.raise();
}

void ColorMarks::optColor_Click(int mark) {
    const Cleared notAnEdit(edit.userColorChange);
    {
        const Cleared notApplying(edit.sliderSync);
        marks.selectedMark = mark;
        Change.raise();
        channels.SetSliders(marks.markColor[mark]);
        EnableSelectedSample();
        Yield();
    }
    target.SetSelectedColor(channels.SliderColor());
}

// The button is too small for a frame of its own.
void ColorMarks::optColor_GotFocus(int mark) { picSample(mark).setFocusFrame(true); }

void ColorMarks::optColor_LostFocus(int mark) { picSample(mark).setFocusFrame(false); }

void ColorMarks::txtName_Change(int mark) {
    txtName(mark).setBackColor(std::nullopt);
    DescribeSample(mark);
    if (!edit.nameFillInProgress && txtName(mark).text() == messages::notJavaScript) {
        txtName(mark).setText(messages::noName);
        txtName(mark).setCaretToEnd();
    }
    Change.raise();
}

void ColorMarks::txtName_Click(int mark) {
    if (nameBoxLeft) txtName(mark).selectAll();
    nameBoxLeft = false;
}

void ColorMarks::txtName_DblClick(int mark) { txtName(mark).selectAll(); }

void ColorMarks::txtName_GotFocus(int mark) { txtName(mark).selectAllIfTabbed(); }

void ColorMarks::txtName_LostFocus(int /*mark*/) {
    nameBoxLeft = true;
    NameLeft.raise();
}

/// A box would take its own undoing back the next time; here an earlier step is wanted then.
void ColorMarks::txtName_Undone(int mark) { txtName(mark).forgetTyping(); }
