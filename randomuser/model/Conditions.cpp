#include "randomuser/model/Conditions.h"

#include "randomuser/model/Focus.h"
#include "resources/resource.h"

namespace {

constexpr int byKey = 0;
constexpr int byToolBar = 1;

}  // namespace

bool IsMainInFront(const Parts& parts, const Action& /*action*/) {
    return parts.windows.isInFront(Front::main);
}

bool IsMainBehind(const Parts& parts, const Action& action) { return !IsMainInFront(parts, action); }

bool IsCommandInReach(const Parts& parts, const Action& action) {
    return action.which == byToolBar || IsMainInFront(parts, action);
}

/// The letter of an item that is greyed would leave the menu open.
bool CanPaste(const Parts& parts, const Action& action) {
    return IsCommandInReach(parts, action) && (action.which <= byToolBar || parts.editing.hasCopied());
}

/// By key also in vain.
bool CanUndo(const Parts& parts, const Action& action) {
    const bool isInVain = action.which == byKey && parts.steps.areNone();
    return IsMainInFront(parts, action) && (parts.steps.canUndo() || isInVain);
}

bool CanRedo(const Parts& parts, const Action& action) {
    return IsMainInFront(parts, action) && parts.steps.canRedo();
}

bool CanOpen(const Parts& parts, const Action& action) {
    return IsCommandInReach(parts, action) && (action.which <= byToolBar || !parts.pick.isOn());
}

bool CanMoveInList(const Parts& parts, const Action& action) {
    return IsMainInFront(parts, action) && parts.codeChoice.canMove(action.value);
}

bool CanPick(const Parts& parts, const Action& action) {
    return parts.pick.isOn() && IsMainInFront(parts, action);
}

/// A frame would lie on the bar while it has the focus.
bool CanTab(const Parts& parts, const Action& action) {
    return IsMainInFront(parts, action) && StopAfter(parts.look(), action.value) != IDC_lblColorBar;
}

bool IsPickerOpen(const Parts& parts, const Action& action) {
    return parts.windows.isPickerOpen(action.which);
}

bool CanClickSwatch(const Parts& parts, const Action& action) {
    return IsPickerOpen(parts, action) && parts.windows.swatchColor(action.which, action.value);
}

bool CanPressSwatch(const Parts& parts, const Action& action) {
    const int beside = SwatchRightOf(action.which, action.value);
    return parts.windows.isInFront(static_cast<Front>(action.which)) &&
           parts.windows.swatchColor(action.which, action.value) &&
           parts.windows.swatchColor(action.which, beside);
}

bool CanSort(const Parts& parts, const Action& /*action*/) { return parts.windows.isPickerOpen(2); }

bool IsContrastOpen(const Parts& parts, const Action& /*action*/) {
    return parts.windows.isPickerOpen(static_cast<int>(Front::contrast));
}

bool IsContrastInFront(const Parts& parts, const Action& /*action*/) {
    return parts.windows.isInFront(Front::contrast);
}

bool CanOthersCopy(const Parts& parts, const Action& /*action*/) {
    return parts.clipboard.isFree(ClipboardFact::State::known);
}

bool IsClipboardFree(const Parts& parts, const Action& /*action*/) { return !parts.clipboard.isHeld; }

bool IsClipboardHeld(const Parts& parts, const Action& /*action*/) { return parts.clipboard.isHeld; }

bool IsCopyDue(const Parts& parts, const Action& /*action*/) {
    return parts.clipboard.isFree(ClipboardFact::State::due);
}

bool HasButton(const Parts& parts, const Action& action) { return parts.box.hasButton(action.value); }

/// Notepad would ask whether to make a file that is missing.
bool CanChoosePath(const Parts& parts, const Action& action) {
    return parts.box.isFileDialog() &&
           (!parts.box.is(Box::Kind::notepad) || parts.fileCommands.files().contains(action.text));
}

bool IsFileDialogOpen(const Parts& parts, const Action& /*action*/) { return parts.box.isFileDialog(); }

bool AreOptionsOpen(const Parts& parts, const Action& /*action*/) { return parts.box.is(Box::Kind::options); }

bool IsFormatOpen(const Parts& parts, const Action& /*action*/) { return parts.box.is(Box::Kind::format); }

/// The about box has no button of that kind to its two keys.
bool CanCloseDialog(const Parts& parts, const Action& action) {
    return AreOptionsOpen(parts, action) || IsFormatOpen(parts, action) ||
           (parts.box.is(Box::Kind::about) && action.which == byKey);
}
