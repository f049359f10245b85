#include "palette/PaletteCommands.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/PathText.h"
#include "palette/FirstLines.h"
#include "palette/Notepad.h"
#include "palette/PaletteFile.h"
#include "resources/resource.h"
#include "support/Messages.h"
#include "support/Reported.h"
#include "toolkit/forms/MessageLoop.h"
#include "toolkit/forms/MsgBox.h"
#include "toolkit/platform/FlagGuard.h"
#include "toolkit/platform/Text.h"

namespace {

/// A file is in the system's code page. Its lines are found before it is converted: CR LF is no part of any
/// character.
std::optional<Palette> ParseFile(const FirstLines& file) {
    std::vector<std::string> lines;
    std::ranges::transform(file.kept(), std::back_inserter(lines), FromAnsi);
    return ParsePaletteLines(std::vector<std::string_view>(lines.begin(), lines.end()));
}

}  // namespace

PaletteCommands::PaletteCommands(Form& form, AppState& state, EditState& edit, CommandBar& commands,
                                 ChannelEditors& channels, ColorMarks& marks, ColorTarget& target)
    : form(form),
      state(state),
      edit(edit),
      channels(channels),
      marks(marks),
      target(target),
      dialogs(form, state) {
    form.FileDrop.bind(this, &PaletteCommands::Form_FileDrop);
    commands.bind(IDM_mnuFileNew, this, &PaletteCommands::mnuFileNew_Click);
    commands.bind(IDM_mnuFileOpen, this, &PaletteCommands::mnuFileOpen_Click);
    commands.bind(IDM_mnuFileOpenInNotepad, this, &PaletteCommands::mnuFileOpenInNotepad_Click);
    commands.bind(IDM_mnuFileSave, this, &PaletteCommands::mnuFileSave_Click);
    commands.bind(IDM_mnuFileSaveAs, this, &PaletteCommands::mnuFileSaveAs_Click);
}

void PaletteCommands::ShowNewPalette() {
    LoadDefaultMarks(state.marks);
    ShowPalette({state.marks.defaultMarkName, state.marks.defaultMarkColor});
    form.setText(messages::newPaletteCaption);
}

bool PaletteCommands::MayClose() {
    const bool isAsked = state.settings.promptToSave == 1 && IsChanged();
    return !isAsked || OfferToSave();
}

void PaletteCommands::mnuFileNew_Click() {
    saveCancelled = false;
    if (IsChanged() && (!OfferToSave() || saveCancelled)) return;
    ShowNewPalette();
}

void PaletteCommands::mnuFileOpen_Click() {
    saveCancelled = false;
    if (IsChanged() && !OfferToSave()) return;
    const std::string path = dialogs.ShowOpenDialog();
    if (!path.empty()) Open(path);
}

void PaletteCommands::mnuFileOpenInNotepad_Click() {
    const std::string path = dialogs.ShowNotepadDialog();
    if (path.empty()) return;
    Yield();
    Reported(form, messages::noNotepad, [&] { StartNotepad(path); });
}

void PaletteCommands::mnuFileSave_Click() {
    const std::string title = form.text();
    const std::string name = title.substr(std::min(messages::titlePrefix.size(), title.size()));
    if (name == messages::newPaletteName) return mnuFileSaveAs_Click();
    // Where the last file dialog was; the current folder may be another one if that is gone.
    Save(dialogs.chosenFolder() + name);
}

void PaletteCommands::mnuFileSaveAs_Click() {
    const std::string path = dialogs.ShowSaveDialog();
    Yield();
    if (path.empty()) {
        saveCancelled = true;
    } else if (Save(path)) {
        NamePalette(path);
    }
}

void PaletteCommands::Form_FileDrop(const std::string& path) {
    if (!IsGivenUp()) return;
    // Nobody has seen the file yet, as a file dialog has: it may be anything.
    Reported(form, messages::couldNotOpen, [&] {
        if (Open(path)) dialogs.Enter(path);
    });
}

bool PaletteCommands::IsChanged() const { return IsPaletteChanged(state.marks, marks.Names()); }

bool PaletteCommands::OfferToSave() {
    AskToSavePalette();
    if (promptAnswer == IDYES) mnuFileSave_Click();
    return promptAnswer == IDYES || promptAnswer == IDNO;
}

/// Whether a palette may go that no further dialog stands for: a save that failed or was cancelled keeps it.
bool PaletteCommands::IsGivenUp() {
    if (!IsChanged()) return true;
    return OfferToSave() && (promptAnswer == IDNO || !IsChanged());
}

void PaletteCommands::AskToSavePalette() {
    promptAnswer = MsgBox(&form, messages::paletteChanged, MB_YESNOCANCEL | MB_ICONQUESTION, messages::title);
}

/// False when the file was refused.
bool PaletteCommands::Open(const std::string& path) {
    constexpr std::size_t lineLimit = 1000;
    OwnedFile file = OpenForReading(path);
    FirstLines lines(linesLookedAt, lineLimit + 1);
    ReadBlocks(file, [&](std::string_view block) { return lines.take(block); });
    // A user who has just opened a palette knows what a palette is: the limit is lifted.
    if (lines.count() > lineLimit && !lastOpenAccepted) {
        filesLeftOpen.push_back(std::move(file));
        Refuse(path);
        return false;
    }
    file = {};
    const std::optional palette = ParseFile(lines);
    lastOpenAccepted = palette.has_value();
    if (!palette) {
        Refuse(path);
        return false;
    }
    ShowPalette(*palette);
    NamePalette(path);
    return true;
}

void PaletteCommands::Refuse(const std::string& path) {
    const std::string refusal = messages::notMadeHereBeforePath + path + messages::notMadeHereAfterPath;
    MsgBox(&form, refusal, MB_OK | MB_ICONEXCLAMATION, messages::title);
}

void PaletteCommands::ShowPalette(const Palette& palette) {
    const Cleared notAnEdit(edit.userColorChange);
    const Cleared notApplying(edit.sliderSync);
    marks.ApplyPalette(palette);
    marks.Select(0);
    const Color first = state.marks.markColor[0];
    channels.SetSliders(first);
    target.SetSelectedColor(first);
    marks.RefreshProperties();
    marks.WhitenNames();
    marks.EnableSelectedSample();
    Shown.raise();
}

bool PaletteCommands::Save(const std::string& path) {
    // A file that is still open, even in this program, cannot be replaced.
    filesLeftOpen.clear();
    const bool isSaved = Reported(form, messages::couldNotSave, [&] {
        const Palette saved = AsSaved(marks.Shown());
        ReplaceTextFile(path, Ansi(WritePaletteFile(saved, state.settings.customFormat)));
        state.marks.savedMarkName = saved.names;
        state.marks.savedMarkColor = saved.colors;
    });
    if (isSaved) {
        marks.WhitenNames();
        Saved.raise();
    }
    return isSaved;
}

void PaletteCommands::NamePalette(std::string_view path) {
    form.setText(std::string(messages::titlePrefix) + std::string(GetFileNamePart(path, "\\")));
}
