#include "toolkit/platform/LibrarySearch.h"

#include "toolkit/platform/Platform.h"

void SearchSystemFolderOnly() {
    // Extensions of the shell, which file dialogs bring in, may name folders of their own.
    ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32 | LOAD_LIBRARY_SEARCH_USER_DIRS);
    // Whoever asks for the old order of search is not led through the current folder either.
    ::SetDllDirectoryA("");
}
