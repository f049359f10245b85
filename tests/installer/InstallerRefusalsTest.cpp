// When do the installer and the uninstaller leave everything as it is, and what do they say?
#include <gtest/gtest.h>

#include <string_view>

#include "tests/driver/WindowText.h"
#include "tests/installer/InstallerFixture.h"

// After the Windows headers.
#include <tlhelp32.h>

namespace {

constexpr int cancelled = 1;
constexpr int inUse = 2;

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

/// Whether a copy of the uninstaller runs in the folder for temporary files.
bool IsRemoving() {
    const HANDLE list = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 process{};
    process.dwSize = sizeof process;
    bool found = false;
    for (BOOL more = ::Process32First(list, &process); more; more = ::Process32Next(list, &process)) {
        const std::string_view name = process.szExeFile;
        found = found || name.starts_with("Un_") || name.starts_with("Au_");
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
