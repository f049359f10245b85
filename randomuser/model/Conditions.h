// When is an action possible, beside that its window is open?
#pragma once

#include "randomuser/model/Action.h"
#include "randomuser/model/Parts.h"

inline bool Always(const Parts& /*parts*/, const Action& /*action*/) { return true; }
bool IsMainInFront(const Parts& parts, const Action& action);
bool IsMainBehind(const Parts& parts, const Action& action);
/// By key and by menu only when the main window is in front.
bool IsCommandInReach(const Parts& parts, const Action& action);
bool CanPaste(const Parts& parts, const Action& action);
bool CanUndo(const Parts& parts, const Action& action);
bool CanRedo(const Parts& parts, const Action& action);
bool CanOpen(const Parts& parts, const Action& action);
bool CanMoveInList(const Parts& parts, const Action& action);
bool CanPick(const Parts& parts, const Action& action);
bool CanTab(const Parts& parts, const Action& action);

bool IsPickerOpen(const Parts& parts, const Action& action);
bool CanClickSwatch(const Parts& parts, const Action& action);
bool CanPressSwatch(const Parts& parts, const Action& action);
bool IsContrastOpen(const Parts& parts, const Action& action);
bool IsContrastInFront(const Parts& parts, const Action& action);
bool CanSort(const Parts& parts, const Action& action);

bool CanOthersCopy(const Parts& parts, const Action& action);
bool IsClipboardFree(const Parts& parts, const Action& action);
bool IsClipboardHeld(const Parts& parts, const Action& action);
bool IsCopyDue(const Parts& parts, const Action& action);

bool HasButton(const Parts& parts, const Action& action);
bool CanChoosePath(const Parts& parts, const Action& action);
bool IsFileDialogOpen(const Parts& parts, const Action& action);
bool AreOptionsOpen(const Parts& parts, const Action& action);
bool IsFormatOpen(const Parts& parts, const Action& action);
bool CanCloseDialog(const Parts& parts, const Action& action);
