// How does the user begin, open and save palettes, and when is saving offered?
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/panels/ChannelEditors.h"
#include "mainwindow/panels/ColorMarks.h"
#include "mainwindow/panels/ColorTarget.h"
#include "mainwindow/panels/CommandBar.h"
#include "mainwindow/panels/EditState.h"
#include "palette/FileDialogs.h"
#include "palette/TextFile.h"
#include "support/AppState.h"
#include "toolkit/forms/Event.h"
#include "toolkit/forms/Form.h"

/// The commands of the File menu. The window's title tells which palette it is, and where Save puts it.
class PaletteCommands {
public:
    PaletteCommands(Form& form, AppState& state, EditState& edit, CommandBar& commands,
                    ChannelEditors& channels, ColorMarks& marks, ColorTarget& target);

    Event<> Shown;  ///< another palette is shown, a new one or that of a file
    Event<> Saved;  ///< the palette has been written as it is shown

    /// The default names and colours, unchanged and without a file.
    void ShowNewPalette();
    /// Before the window closes: offers to save a changed palette, if the user wants that. False when the
    /// user would rather keep the window.
    bool MayClose();

private:
    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileOpenInNotepad_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void Form_FileDrop(const std::string& path);

    bool IsChanged() const;
    /// False when the user would rather keep the current palette.
    bool OfferToSave();
    void AskToSavePalette();
    bool IsGivenUp();
    bool Open(const std::string& path);
    void Refuse(const std::string& path);
    void ShowPalette(const Palette& palette);
    bool Save(const std::string& path);
    void NamePalette(std::string_view path);

    Form& form;
    AppState& state;
    EditState& edit;
    ChannelEditors& channels;
    ColorMarks& marks;
    ColorTarget& target;
    FileDialogs dialogs;

    bool saveCancelled = false;
    bool lastOpenAccepted = false;
    int promptAnswer = 0;
    std::vector<OwnedFile> filesLeftOpen;
};
