// How are the six colour marks shown, selected and named?
#pragma once

#include <string>
#include <string_view>

#include "mainwindow/panels/ChannelEditors.h"
#include "mainwindow/panels/ColorTarget.h"
#include "mainwindow/panels/EditState.h"
#include "mainwindow/panels/History.h"
#include "support/Marks.h"
#include "toolkit/controls/Buttons.h"
#include "toolkit/controls/ControlArray.h"
#include "toolkit/controls/Label.h"
#include "toolkit/controls/PictureBox.h"
#include "toolkit/controls/TextBox.h"
#include "toolkit/forms/Event.h"

/// The six marks: their name boxes, option buttons, samples and letters.
class ColorMarks {
public:
    ColorMarks(Form& form, Marks& marks, EditState& edit, ChannelEditors& channels, ColorTarget& target);

    /// A colour or a name may have changed, its highlight, or which mark is selected: by whomever.
    Event<> Change;
    Event<> NameLeft;  ///< a name box has lost the focus

    /// At load: limits of the name boxes.
    void Prepare();

    /// Shows a new or opened palette, which counts as saved. The selection and the other views stay.
    void ApplyPalette(const Palette& palette);
    /// All that Undo brings back.
    MarkState State() const;
    /// Shows the marks as they were. The other views stay.
    void Restore(const MarkState& state);
    /// What has been typed into the name boxes can no longer be taken back in them.
    void ForgetTyping();
    /// Selects a mark without applying its colour.
    void Select(int mark);
    /// Selects a mark as the user does by its button.
    void Choose(int mark);
    Color SampleColor(int mark) const;
    std::string Name(int mark) const { return txtName(mark).text(); }
    MarkNames Names() const;
    /// Names and colours as they stand.
    Palette Shown() const { return {Names(), marks.markColor}; }
    void SetName(int mark, std::string_view name) { txtName(mark).setText(name); }
    /// Sets the name and puts the caret after its last character.
    void Rename(int mark, std::string_view name);
    void WhitenNames();
    /// Only the selected mark's sample can start a screen pick.
    void EnableSelectedSample();
    PictureBox& SelectedSample() { return picSample(marks.selectedMark); }
    /// For whoever handles the mouse on the samples.
    ControlArray<PictureBox, markCount>& Samples() { return picSample; }
    void LetSamplesBePressed(bool isLet) { picSampleContainer.setEnabled(isLet); }
    void RefreshProperties();

    void PaintSelected(const Color& color);
    /// After the user has changed the colour: the selected mark's name may no longer fit.
    void HighlightRenamed();

private:
    void optColor_Click(int mark);
    void optColor_GotFocus(int mark);
    void optColor_LostFocus(int mark);
    void txtName_Change(int mark);
    void txtName_Click(int mark);
    void txtName_DblClick(int mark);
    void txtName_GotFocus(int mark);
    void txtName_LostFocus(int mark);
    void txtName_Undone(int mark);

    void ShowMark(int mark, const Color& color);
    void DescribeSample(int mark);

    Marks& marks;
    EditState& edit;
    ChannelEditors& channels;
    ColorTarget& target;

    ControlArray<TextBox, markCount> txtName;
    OptionGroup selection;
    ControlArray<OptionButton, markCount> optColor;
    PictureBox picSampleContainer;
    ControlArray<PictureBox, markCount> picSample;
    ControlArray<Label, markCount> lblColorProp;
    bool nameBoxLeft = true;  ///< a name box has lost the focus since the last click into one
};
