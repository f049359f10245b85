// How does the user choose a palette file?
#pragma once

#include <string>

#include "support/AppState.h"
#include "toolkit/forms/Form.h"

/// The platform's dialogs, opened in the standard folder. Each returns the full path that the user chose, and
/// has made its folder the current one; or "", and the current folder is what it was.
class FileDialogs {
public:
    FileDialogs(const Form& owner, AppState& state);

    std::string ShowSaveDialog();
    /// The file need not exist.
    std::string ShowOpenDialog();
    std::string ShowNotepadDialog();

    /// The folder that the user last chose, with a closing backslash; "" before the first choice.
    const std::string& chosenFolder() const { return folder; }

private:
    struct Kind;

    std::string Show(const Kind& kind);
    void ReplaceUnusableFolder();

    const Form& owner;
    AppState& state;
    std::string folder;
};
