#include "palette/FileDialogs.h"

#include <commdlg.h>

#include <algorithm>
#include <array>

#include "core/PathText.h"
#include "settings/Folders.h"
#include "toolkit/platform/CodePage.h"
#include "toolkit/platform/SystemFunction.h"

struct FileDialogs::Kind {
    const char* function;
    const char* title;
    DWORD flags;
    bool isForExistingFiles;
};

namespace {

/// Blanks and two NULs, after a NUL: without it the dialog would offer the blanks as a name.
template <std::size_t size>
std::array<char, size> EmptyBuffer() {
    std::array<char, size> buffer{};
    std::fill(buffer.begin() + 1, buffer.end() - 2, ' ');
    return buffer;
}

std::string CurrentFolder() {
    std::string folder(::GetCurrentDirectoryA(0, nullptr), '\0');
    folder.resize(::GetCurrentDirectoryA(static_cast<DWORD>(folder.size()), folder.data()));
    return folder;
}

bool IsFile(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace

FileDialogs::FileDialogs(const Form& owner, AppState& state) : owner(owner), state(state) {}

std::string FileDialogs::ShowSaveDialog() {
    return Show({"GetSaveFileNameA", "Save Palette As", OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY, false});
}

std::string FileDialogs::ShowOpenDialog() {
    return Show({"GetOpenFileNameA", "Open Palette In Huevox", OFN_HIDEREADONLY, true});
}

std::string FileDialogs::ShowNotepadDialog() {
    return Show({"GetOpenFileNameA", "Open Palette In Notepad", OFN_HIDEREADONLY, true});
}

std::string FileDialogs::Show(const Kind& kind) {
    ReplaceUnusableFolder();
    std::array file = EmptyBuffer<1026>();
    std::array fileTitle = EmptyBuffer<514>();
    OPENFILENAMEA record{};
    record.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
    record.hwndOwner = owner.handle();
    record.hInstance = ::GetModuleHandleA(nullptr);
    record.lpstrFilter = "Text Files (*.txt)\0*.txt\0";
    record.nFilterIndex = 1;
    record.lpstrFile = file.data();
    record.nMaxFile = file.size();
    record.lpstrFileTitle = fileTitle.data();
    record.nMaxFileTitle = fileTitle.size();
    record.lpstrInitialDir = state.settings.standardFolder.c_str();
    record.lpstrTitle = kind.title;
    record.Flags = kind.flags;
    record.lpstrDefExt = "txt\0";

    // Loaded only now: its library loads those for printing too, which most runs never need.
    const auto show = SystemFunction<decltype(::GetOpenFileNameA)>("comdlg32.dll", kind.function);
    // Whether the dialog itself changes the current folder, and when, depends on the version of Windows.
    const std::string folderBefore = CurrentFolder();
    if (!show(&record)) {
        ::SetCurrentDirectoryA(folderBefore.c_str());
        return "";
    }
    const std::string path = file.data();
    folder = FolderPart(path, IsLeadByte);
    ::SetCurrentDirectoryA(folder.c_str());
    return kind.isForExistingFiles && IsFile(path) ? path : WithExtension(path, IsLeadByte);
}

/// No folder is called "True" or "False", so Windows then chooses one.
void FileDialogs::ReplaceUnusableFolder() {
    if (IsValidFolder(state.settings.standardFolder)) return;
    const bool isDesktopKnown = GetDesktopFolder(state.desktopFolder);
    state.desktopFolder = isDesktopKnown ? "True" : "False";
    state.settings.standardFolder = state.desktopFolder;
}
