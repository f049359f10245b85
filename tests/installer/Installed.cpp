#include "tests/installer/Installed.h"

#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include <array>

#include "tests/driver/FindWindows.h"
#include "tests/driver/StartProgram.h"

namespace {

std::filesystem::path UserFolder(int which) {
    std::array<char, MAX_PATH> path{};
    ::SHGetFolderPathA(nullptr, which, nullptr, SHGFP_TYPE_CURRENT, path.data());
    return path.data();
}

void AddFiles(const std::filesystem::path& folder, std::set<std::string>& traces) {
    for (auto at = std::filesystem::recursive_directory_iterator(folder);
         at != std::filesystem::recursive_directory_iterator(); ++at) {
        if (at->path().filename() == "Temp")
            at.disable_recursion_pending();
        else if (!at->is_directory())
            traces.insert(at->path().string());
    }
}

// Below "Wine", Wine keeps a list of shortcuts.
void AddKeys(HKEY parent, const std::string& path, std::set<std::string>& traces) {
    HKEY key = nullptr;
    if (path == "Software\\Wine" || ::RegOpenKeyExA(parent, path.c_str(), 0, KEY_READ, &key) != 0) return;
    std::array<char, 256> name{};
    DWORD length = name.size();
    for (DWORD index = 0;
         ::RegEnumKeyExA(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) == 0;
         ++index) {
        const std::string child = path + "\\" + name.data();
        traces.insert(child);
        AddKeys(parent, child, traces);
        length = name.size();
    }
    ::RegCloseKey(key);
}

}  // namespace

Process::Process(const std::string& commandLine) {
    const PROCESS_INFORMATION started = StartProgram(commandLine);
    ::CloseHandle(started.hThread);
    process = started.hProcess;
}

// The shell may start it by way of another process.
Process Process::FromStartMenu() {
    ::ShellExecuteA(nullptr, nullptr, Shortcut().string().c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    HWND window = nullptr;
    EXPECT_TRUE(Eventually([&] { return (window = ::FindWindowA("frmMain", nullptr)) != nullptr; }));
    DWORD id = 0;
    ::GetWindowThreadProcessId(window, &id);
    Process started;
    started.process = ::OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
    return started;
}

Process::Process(Process&& other) noexcept : process(std::exchange(other.process, nullptr)) {}

Process::~Process() {
    if (!process) return;
    ::TerminateProcess(process, 1);
    ::WaitForSingleObject(process, INFINITE);
    ::CloseHandle(process);
}

std::optional<int> Process::waitForEnd() const {
    DWORD exitCode = 0;
    if (!Eventually([&] { return ::WaitForSingleObject(process, 0) == WAIT_OBJECT_0; })) return std::nullopt;
    ::GetExitCodeProcess(process, &exitCode);
    return static_cast<int>(exitCode);
}

HWND Process::waitForWindow(const char* className) const {
    HWND window = nullptr;
    const DWORD id = ::GetProcessId(process);
    EXPECT_TRUE(Eventually([&] { return (window = FindVisible(id, className).first) != nullptr; }))
        << className;
    return window;
}

int RunToEnd(const std::string& commandLine) { return Process(commandLine).waitForEnd().value_or(-1); }

std::filesystem::path DefaultFolder() { return UserFolder(CSIDL_LOCAL_APPDATA) / "Programs" / "Huevox"; }

std::filesystem::path Shortcut() { return UserFolder(CSIDL_PROGRAMS) / "Huevox.lnk"; }

std::filesystem::path ShortcutTarget() {
    ::CoInitialize(nullptr);
    std::array<char, MAX_PATH> target{};
    IShellLinkA* link = nullptr;
    IPersistFile* file = nullptr;
    ::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                       reinterpret_cast<void**>(&link));
    if (link && link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)) == S_OK) {
        if (file->Load(Shortcut().c_str(), STGM_READ) == S_OK)
            link->GetPath(target.data(), MAX_PATH, nullptr, 0);
        file->Release();
    }
    if (link) link->Release();
    ::CoUninitialize();
    return target.data();
}

// The uninstaller goes on in a copy of itself and ends before that.
bool Remove(const std::filesystem::path& folder, const std::string& extra) {
    const std::filesystem::path uninstaller = folder / "uninstall.exe";
    EXPECT_EQ(RunToEnd("\"" + uninstaller.string() + "\" /S" + extra), 0);
    return Eventually([&] { return !HasKey(uninstallKey) && !std::filesystem::exists(uninstaller); });
}

std::string Value(const char* key, const char* name) {
    std::array<char, 1024> data{};
    DWORD type = 0;
    auto size = static_cast<DWORD>(data.size() - 1);
    if (::RegGetValueA(HKEY_CURRENT_USER, key, name, RRF_RT_REG_SZ | RRF_RT_REG_DWORD, &type, data.data(),
                       &size) != 0)
        return "";
    return type == REG_DWORD ? std::to_string(*reinterpret_cast<const DWORD*>(data.data())) : data.data();
}

bool HasKey(const char* key) {
    HKEY opened = nullptr;
    if (::RegOpenKeyExA(HKEY_CURRENT_USER, key, 0, KEY_READ, &opened) != 0) return false;
    ::RegCloseKey(opened);
    return true;
}

bool MakeKey(const char* key) {
    HKEY made = nullptr;
    if (::RegCreateKeyA(HKEY_CURRENT_USER, key, &made) != ERROR_SUCCESS) return false;
    ::RegCloseKey(made);
    return true;
}

void StoreSetting() { ::RegSetKeyValueA(HKEY_CURRENT_USER, settingsKey, "SortIndex", REG_SZ, "1", 2); }

std::string ChangeOfTraces(const std::set<std::string>& before) {
    std::string change;
    const std::set<std::string> now = Traces();
    for (const std::string& trace : now) change += before.contains(trace) ? "" : "+ " + trace + '\n';
    for (const std::string& trace : before) change += now.contains(trace) ? "" : "- " + trace + '\n';
    return change;
}

std::set<std::string> Traces() {
    std::set<std::string> traces;
    for (const int folder :
         {CSIDL_LOCAL_APPDATA, CSIDL_STARTMENU, CSIDL_COMMON_STARTMENU, CSIDL_PROGRAM_FILES}) {
        AddFiles(UserFolder(folder), traces);
    }
    AddKeys(HKEY_CURRENT_USER, "Software", traces);
    return traces;
}
