// When do the installer and the uninstaller leave everything as it is, and what do they say?
#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "tests/driver/WindowText.h"
#include "tests/installer/InstallerFixture.h"

// After the Windows headers.
#include <tlhelp32.h>

namespace {

constexpr int cancelled = 1;
constexpr int inUse = 2;
constexpr int oldWindows = ERROR_OLD_WIN_VERSION;

using InstallerRefusals = Installer;

/// A file of the installed program as somebody has it open who lets others read, but not write.
class FileInUse {
public:
    explicit FileInUse(const std::filesystem::path& path)
        : file(::CreateFileA(path.string().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                             nullptr)) {
        EXPECT_NE(file, INVALID_HANDLE_VALUE) << path;
    }
    FileInUse(const FileInUse&) = delete;
    FileInUse& operator=(const FileInUse&) = delete;
    ~FileInUse() { ::CloseHandle(file); }

private:
    HANDLE file;
};

/// What the system says of itself to programs that start from now on.
class WindowsBuild {
public:
    explicit WindowsBuild(const std::string& number) { write(number); }
    WindowsBuild(const WindowsBuild&) = delete;
    WindowsBuild& operator=(const WindowsBuild&) = delete;
    ~WindowsBuild() { write(original); }

private:
    static constexpr const char* key = R"(Software\Microsoft\Windows NT\CurrentVersion)";
    static constexpr const char* name = "CurrentBuildNumber";

    static std::string Read() {
        std::string text(32, '\0');
        auto size = static_cast<DWORD>(text.size());
        ::RegGetValueA(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_SZ, nullptr, text.data(), &size);
        text.resize(std::max<DWORD>(size, 1) - 1);
        return text;
    }
    static void write(const std::string& number) {
        EXPECT_EQ(::RegSetKeyValueA(HKEY_LOCAL_MACHINE, key, name, REG_SZ, number.c_str(),
                                    static_cast<DWORD>(number.size() + 1)),
                  ERROR_SUCCESS);
    }

    const std::string original = Read();
};

/// Whether a copy of the uninstaller runs in the folder for temporary files.
bool IsRemoving() {
    const HANDLE list = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W process{};
    process.dwSize = sizeof process;
    bool found = false;
    for (BOOL more = ::Process32FirstW(list, &process); more; more = ::Process32NextW(list, &process)) {
        const std::wstring_view name = process.szExeFile;
        found = found || name.starts_with(L"Un_") || name.starts_with(L"Au_");
    }
    ::CloseHandle(list);
    return found;
}

/// Newer version and uninstaller, run silently, end with that code and change nothing.
void ExpectNothingChanges(int exitCode) {
    const auto before = Traces();
    EXPECT_EQ(RunToEnd(newerSetup.string() + " /S"), exitCode);
    EXPECT_EQ(RunToEnd(Quoted(DefaultFolder() / "uninstall.exe") + " /S _?=" + DefaultFolder().string()),
              exitCode);
    EXPECT_EQ(ChangeOfTraces(before), "");
    EXPECT_EQ(Value(uninstallKey, "DisplayVersion"), HUEVOX_VERSION);
    EXPECT_TRUE(Bytes(DefaultFolder() / "Huevox.exe") == Bytes(HUEVOX_EXE));
    EXPECT_TRUE(Bytes(DefaultFolder() / "huevox.chm") == Bytes("huevox.chm"));
}

/// Waits until the wizard has a message box, and returns it.
HWND WaitForMessage(HWND wizard) {
    HWND box = nullptr;
    const bool hasCome = Eventually([&] {
        box = ::GetLastActivePopup(wizard);
        return box && box != wizard && ::IsWindowVisible(box) != FALSE;
    });
    return hasCome ? box : nullptr;
}

void Press(HWND window, int button) { ::PostMessageA(::GetDlgItem(window, button), BM_CLICK, 0, 0); }

}  // namespace

TEST_F(InstallerRefusals, LeaveARunningProgramAlone) {
    install();
    const Process program = Process::FromStartMenu();
    ASSERT_TRUE(program.waitForWindow("frmMain"));
    ExpectNothingChanges(inUse);
}

TEST_F(InstallerRefusals, LeaveAnOpenHelpAlone) {
    install();
    const FileInUse help(DefaultFolder() / "huevox.chm");
    ExpectNothingChanges(inUse);
}

TEST_F(InstallerRefusals, ARemovalThatIsNotWaitedForEndsWith0ThoughItDoesNothing) {
    install();
    const FileInUse help(DefaultFolder() / "huevox.chm");
    const auto before = Traces();
    EXPECT_EQ(RunToEnd(Quoted(DefaultFolder() / "uninstall.exe") + " /S"), 0);
    EXPECT_BECOMES(IsRemoving(), false);
    EXPECT_EQ(ChangeOfTraces(before), "");
}

TEST_F(InstallerRefusals, SayThatTheProgramIsRunningAndGoOnWhenItIsNot) {
    install();
    const Process newer(newerSetup.string());
    const HWND wizard = newer.waitForWindow("#32770");
    ASSERT_TRUE(wizard);
    HWND box = nullptr;
    {
        const Process program = Process::FromStartMenu();
        ASSERT_TRUE(program.waitForWindow("frmMain"));
        Press(wizard, IDOK);
        ASSERT_TRUE(box = WaitForMessage(wizard));
        EXPECT_EQ(MessageOf(box), "Huevox is running. Close it and try again.");
        EXPECT_EQ(Value(uninstallKey, "DisplayVersion"), HUEVOX_VERSION);
    }
    Press(box, IDRETRY);
    EXPECT_BECOMES(Value(uninstallKey, "DisplayVersion"), HUEVOX_NEWER_VERSION);
}

TEST_F(InstallerRefusals, SayThatTheHelpIsOpenAndGoOnWhenItIsNot) {
    install();
    const Process newer(newerSetup.string());
    const HWND wizard = newer.waitForWindow("#32770");
    ASSERT_TRUE(wizard);
    HWND box = nullptr;
    {
        const FileInUse help(DefaultFolder() / "huevox.chm");
        Press(wizard, IDOK);
        ASSERT_TRUE(box = WaitForMessage(wizard));
        EXPECT_EQ(MessageOf(box), "The help of Huevox is open. Close it and try again.");
        EXPECT_EQ(Value(uninstallKey, "DisplayVersion"), HUEVOX_VERSION);
    }
    Press(box, IDRETRY);
    EXPECT_BECOMES(Value(uninstallKey, "DisplayVersion"), HUEVOX_NEWER_VERSION);
}

TEST_F(InstallerRefusals, EndWithACodeOfTheirOwnWhenTheUserCancels) {
    const auto before = Traces();
    const Process starting(setup.string());
    const HWND wizard = starting.waitForWindow("#32770");
    ASSERT_TRUE(wizard);
    Press(wizard, IDCANCEL);
    EXPECT_EQ(starting.waitForEnd(), cancelled);
    EXPECT_EQ(ChangeOfTraces(before), "");
}

TEST_F(InstallerRefusals, ARemovalThatIsWaitedForLeavesOnlyTheUninstaller) {
    install();
    EXPECT_EQ(RunToEnd(Quoted(DefaultFolder() / "uninstall.exe") + " /S _?=" + DefaultFolder().string()), 0);
    EXPECT_FALSE(HasKey(uninstallKey));
    const std::filesystem::directory_iterator left(DefaultFolder());
    EXPECT_EQ(left->path().filename(), "uninstall.exe");
    EXPECT_EQ(std::distance(left, {}), 1);
    std::filesystem::remove_all(DefaultFolder());
}

TEST_F(InstallerRefusals, TurnDownAWindowsBefore10Version1607) {
    const auto before = Traces();
    {
        const WindowsBuild last("14392");
        EXPECT_EQ(RunToEnd(setup.string() + " /S"), oldWindows);
        EXPECT_EQ(ChangeOfTraces(before), "");
    }
    const WindowsBuild first("14393");
    install();
    EXPECT_EQ(Value(uninstallKey, "DisplayVersion"), HUEVOX_VERSION);
}

TEST_F(InstallerRefusals, SayWhichWindowsIsNeeded) {
    const WindowsBuild last("14392");
    const Process starting(setup.string());
    const HWND box = starting.waitForWindow("#32770");
    ASSERT_TRUE(box);
    EXPECT_EQ(MessageOf(box), "Huevox needs Windows 10, version 1607, or later.");
    Press(box, IDOK);
    EXPECT_EQ(starting.waitForEnd(), oldWindows);
}
