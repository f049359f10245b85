// Where does Windows look for a library that is loaded by name only?
#pragma once

/// Restricts the search to the system's folder: not the program's, and not the current one, which file
/// dialogs move to wherever palettes are. Call it before anything is loaded.
void SearchSystemFolderOnly();
