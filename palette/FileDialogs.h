// How does the user choose a palette file?
#pragma once

#include <string>

#include "palette/InitialFolder.h"
#include "support/AppState.h"
#include "toolkit/forms/Form.h"

/// The file dialogs of Windows, opened in the standard folder. Each returns the full path that the user chose
/// and makes its folder the current one; or returns "" and leaves the current folder as it was.
class FileDialogs {
public:
    FileDialogs(const Form& owner, AppState& state);

    std::string ShowSaveDialog();
    /// The file need not exist.
    std::string ShowOpenDialog();
    std::string ShowNotepadDialog();

    /// The user has chosen this file in another way.
    void Enter(const std::string& path);
    /// The folder that the user last chose, with a closing backslash; "" before the first choice.
    const std::string& chosenFolder() const { return folder; }

private:
    struct Kind;

    std::string Show(const Kind& kind);
    bool MayReplace(const std::string& path) const;
    void ReplaceUnusableFolder();

    const Form& owner;
    AppState& state;
    InitialFolder initial;
    std::string folder;
};
