#include "randomuser/Program.h"

#include <filesystem>

#include "randomuser/model/SessionFiles.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/UiTest.h"

namespace {

void MakeFiles() {
    std::error_code ignored;
    for (const auto& [path, file] : FilesAtStart()) ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    std::filesystem::remove_all(filesFolder, ignored);
    std::filesystem::create_directories(secondFolder);
    for (const auto& [path, file] : FilesAtStart()) {
        WriteContent(path, file.text);
        if (file.isReadOnly) ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    }
}

void StoreSettings(const StoredSettings& settings) {
    StoreText("CustomFormat", settings.customFormat);
    StoreText("FormatIndex", std::to_string(settings.formatIndex));
    StoreText("SortIndex", std::to_string(settings.sortIndex));
    StoreText("PromptToSave", std::to_string(settings.promptToSave));
    StoreText("StandardFolder", filesFolder);
}

/// Of a program whose window has come and stands at the corner of the screen; nullptr when none comes.
HANDLE ProcessOf(Huevox& huevox) {
    if (!huevox.waitForWindow()) return nullptr;
    Reach::moveTo(huevox.window(), {0, 0});
    DWORD id = 0;
    ::GetWindowThreadProcessId(huevox.window(), &id);
    return ::OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
}

}  // namespace

void PrepareStart(const StoredSettings& settings) {
    StoreSettings(settings);
    MakeFiles();
}

Program::Program(OtherProgram& other, DWORD patience)
    : huevox(Huevox::DoNotWait{}),
      process(ProcessOf(huevox)),
      eyes(huevox.window(), process),
      hands(huevox, eyes, other, patience) {}

Program::~Program() {
    huevox.kill();
    ::CloseHandle(process);
}
