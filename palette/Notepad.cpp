#include "palette/Notepad.h"

#include <array>
#include <stdexcept>

#include "core/PathText.h"
#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Text.h"

std::string GetWindowsFolder() {
    std::array<wchar_t, 260> buffer{};
    ::GetWindowsDirectoryW(buffer.data(), buffer.size());
    const std::string folder = Utf8(buffer.data());
    return FolderPart(folder) == folder ? folder : folder + '\\';
}

void StartNotepad(const std::string& path) {
    using OwnedProcess = Owned<HANDLE, &::CloseHandle>;
    // Notepad takes all that follows its name for the path, so the path is not quoted.
    std::wstring command = Wide(GetWindowsFolder() + "Notepad.exe " + path);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    const BOOL hasStarted = ::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                             nullptr, &startup, &started);
    if (!hasStarted) throw std::runtime_error("Notepad does not start");
    const OwnedProcess process(started.hProcess);
    const OwnedProcess thread(started.hThread);
}
