// Where does the platform look for a library that is loaded by its name alone?
#pragma once

/// From now on in the system's folder only: neither in the program's own folder nor in the current one, which
/// file dialogs move to wherever palettes lie. To be called before anything is loaded.
void SearchSystemFolderOnly();
