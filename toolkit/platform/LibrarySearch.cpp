#include "toolkit/platform/LibrarySearch.h"

#include "toolkit/platform/Platform.h"

void SearchSystemFolderOnly() {
    // Shell extensions, which file dialogs load, may add folders of their own.
    ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32 | LOAD_LIBRARY_SEARCH_USER_DIRS);
    // The old search order, for those who ask for it, leaves the current folder out too.
    ::SetDllDirectoryW(L"");
}
