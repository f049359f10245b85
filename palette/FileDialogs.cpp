#include "palette/FileDialogs.h"

#include <commdlg.h>

#include <algorithm>
#include <array>

#include "core/PathText.h"
#include "settings/Folders.h"
#include "settings/LoadSettings.h"
#include "support/Messages.h"
#include "toolkit/forms/MsgBox.h"
#include "toolkit/platform/SystemFunction.h"
#include "toolkit/platform/Text.h"

struct FileDialogs::Kind {
    const char* function;
    const wchar_t* title;
    DWORD flags;
    bool isForExistingFiles;
};

namespace {

/// Blanks and two NULs, after a NUL: without it the dialog would offer the blanks as a name.
template <std::size_t size>
std::array<wchar_t, size> EmptyBuffer() {
    std::array<wchar_t, size> buffer{};
    std::fill(buffer.begin() + 1, buffer.end() - 2, L' ');
    return buffer;
}

std::wstring CurrentFolder() {
    std::wstring folder(::GetCurrentDirectoryW(0, nullptr), L'\0');
    folder.resize(::GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    return folder;
}

bool IsFile(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesW(Wide(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace

FileDialogs::FileDialogs(const Form& owner, AppState& state)
    : owner(owner), state(state), initial(::GetCurrentProcessId()) {}

std::string FileDialogs::ShowSaveDialog() {
    return Show({"GetSaveFileNameW", L"Save Palette As", OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY, false});
}

std::string FileDialogs::ShowOpenDialog() {
    return Show({"GetOpenFileNameW", L"Open Palette In Huevox", OFN_HIDEREADONLY, true});
}

std::string FileDialogs::ShowNotepadDialog() {
    return Show({"GetOpenFileNameW", L"Open Palette In Notepad", OFN_HIDEREADONLY, true});
}

std::string FileDialogs::Show(const Kind& kind) {
    ReplaceUnusableFolder();
    const std::wstring asked = Wide(initial.of(state.settings.standardFolder));
    std::array file = EmptyBuffer<1026>();
    std::array fileTitle = EmptyBuffer<514>();
    OPENFILENAMEW record{};
    record.lStructSize = OPENFILENAME_SIZE_VERSION_400W;
    record.hwndOwner = owner.handle();
    record.hInstance = ::GetModuleHandleW(nullptr);
    record.lpstrFilter = L"Text Files (*.txt)\0*.txt\0";
    record.nFilterIndex = 1;
    record.lpstrFile = file.data();
    record.nMaxFile = file.size();
    record.lpstrFileTitle = fileTitle.data();
    record.nMaxFileTitle = fileTitle.size();
    record.lpstrInitialDir = asked.c_str();
    record.lpstrTitle = kind.title;
    record.Flags = kind.flags;
    record.lpstrDefExt = L"txt\0";

    // Loaded only now: its library loads those for printing too, which most runs never need.
    const auto show = SystemFunction<decltype(::GetOpenFileNameW)>("comdlg32.dll", kind.function);
    // Whether the dialog itself changes the current folder, and when, depends on the version of Windows.
    const std::wstring folderBefore = CurrentFolder();
    std::string path;
    do {
        if (!show(&record)) {
            ::SetCurrentDirectoryW(folderBefore.c_str());
            return "";
        }
        path = Utf8(file.data());
        if (!kind.isForExistingFiles || !IsFile(path)) path = WithExtension(path);
    } while (!kind.isForExistingFiles && path != Utf8(file.data()) && !MayReplace(path));
    Enter(path);
    return path;
}

void FileDialogs::Enter(const std::string& path) {
    folder = FolderPart(path);
    ::SetCurrentDirectoryW(Wide(folder).c_str());
}

/// The dialog has asked about the name without its extension. After No it comes back, as after its own
/// question.
bool FileDialogs::MayReplace(const std::string& path) const {
    if (!IsFile(path)) return true;
    const std::string question = std::string(GetFileNamePart(path, "\\")) + messages::replaceAfterName;
    constexpr UINT style = MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2;
    return MsgBox(&owner, question, style, messages::replaceTitle) == IDYES;
}

/// No folder is called "True" or "False", so Windows then chooses one.
void FileDialogs::ReplaceUnusableFolder() {
    FindStandardFolder(state);
    if (IsValidFolder(state.settings.standardFolder)) return;
    const bool isDesktopKnown = GetDesktopFolder(state.desktopFolder);
    state.desktopFolder = isDesktopKnown ? "True" : "False";
    state.settings.standardFolder = state.desktopFolder;
}
