// Does the installer put the program where it belongs, and does the uninstaller take all of it away again?
#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"
#include "tests/installer/InstallerFixture.h"

namespace fs = std::filesystem;

namespace {

/// A text of a program's version information, in British English.
std::string VersionText(const fs::path& program, const std::string& name) {
    const std::string file = program.string();
    std::vector<char> data(::GetFileVersionInfoSizeA(file.c_str(), nullptr));
    void* text = nullptr;
    UINT length = 0;
    if (data.empty() ||
        !::GetFileVersionInfoA(file.c_str(), 0, static_cast<DWORD>(data.size()), data.data()) ||
        !::VerQueryValueA(data.data(), (R"(\StringFileInfo\080904B0\)" + name).c_str(), &text, &length))
        return "";
    return static_cast<const char*>(text);
}

}  // namespace

TEST(VersionInformation, NamesTheProgramAndItsVersionAndNoCompany) {
    EXPECT_EQ(VersionText(HUEVOX_EXE, "FileVersion"), HUEVOX_VERSION);
    EXPECT_EQ(VersionText(HUEVOX_EXE, "ProductVersion"), HUEVOX_VERSION);
    EXPECT_EQ(VersionText(HUEVOX_EXE, "ProductName"), "Huevox");
    EXPECT_EQ(VersionText(HUEVOX_EXE, "FileDescription"), "Huevox colour manager");
    EXPECT_EQ(VersionText(HUEVOX_EXE, "InternalName"), "Huevox");
    EXPECT_EQ(VersionText(HUEVOX_EXE, "OriginalFilename"), "Huevox.exe");
    EXPECT_EQ(VersionText(HUEVOX_EXE, "LegalCopyright"), "Copyright (c) 2026 the Huevox authors");
    EXPECT_EQ(VersionText(HUEVOX_EXE, "CompanyName"), "");
}

TEST(VersionInformation, IsTheManifestsAsWell) {
    const std::string program = Bytes(HUEVOX_EXE);
    EXPECT_NE(program.find("name=\"Huevox\" version=\"" HUEVOX_VERSION ".0\""), std::string::npos);
}

TEST_F(Installer, InstallsTheProgramWithItsLicenceForTheUserAlone) {
    install();
    const fs::path folder = DefaultFolder();
    EXPECT_TRUE(Bytes(folder / "Huevox.exe") == Bytes(HUEVOX_EXE));
    EXPECT_TRUE(Bytes(folder / "huevox.chm") == Bytes("huevox.chm"));
    EXPECT_NE(Bytes(folder / "LICENSE.txt").find("the Huevox authors\r\n"), std::string::npos);
    EXPECT_NE(Bytes(folder / "README.txt").find("Huevox " HUEVOX_VERSION "\r\n"), std::string::npos);
    EXPECT_NE(Bytes(folder / "THIRD-PARTY.txt").find("winpthreads"), std::string::npos);
    EXPECT_EQ(ShortcutTarget(), folder / "Huevox.exe");
}

TEST_F(Installer, EntersTheProgramInTheSystemsList) {
    install();
    const fs::path folder = DefaultFolder();
    EXPECT_EQ(Value(uninstallKey, "DisplayName"), "Huevox");
    EXPECT_EQ(Value(uninstallKey, "DisplayVersion"), HUEVOX_VERSION);
    EXPECT_EQ(Value(uninstallKey, "DisplayIcon"), (folder / "Huevox.exe").string());
    EXPECT_EQ(Value(uninstallKey, "InstallLocation"), folder.string());
    EXPECT_EQ(Value(uninstallKey, "UninstallString"), Quoted(folder / "uninstall.exe"));
    EXPECT_EQ(Value(uninstallKey, "QuietUninstallString"), Quoted(folder / "uninstall.exe") + " /S");
    EXPECT_EQ(Value(uninstallKey, "NoModify"), "1");
    EXPECT_EQ(Value(uninstallKey, "NoRepair"), "1");
    EXPECT_EQ(Value(uninstallKey, "Publisher"), "");
    const auto kilobytes = static_cast<int>(fs::file_size(folder / "Huevox.exe") / 1024);
    EXPECT_GE(std::stoi("0" + Value(uninstallKey, "EstimatedSize")), kilobytes);
    EXPECT_LT(std::stoi("0" + Value(uninstallKey, "EstimatedSize")), 5 * kilobytes);
}

TEST_F(Installer, TheStartMenuStartsTheProgram) {
    install();
    const Process program = Process::FromStartMenu();
    const HWND window = program.waitForWindow("frmMain");
    ASSERT_TRUE(window);
    EXPECT_EQ(TextOf(window), "Huevox - New palette");
    ::PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.waitForEnd(), 0);
}

TEST_F(Installer, TakesAFolderWithBlanks) {
    installInFolderWithBlanks();
    EXPECT_EQ(ShortcutTarget(), folderWithBlanks / "Huevox.exe");
    EXPECT_FALSE(fs::exists(DefaultFolder()));
    EXPECT_TRUE(Process::FromStartMenu().waitForWindow("frmMain"));
}

TEST_F(Installer, ANewerVersionReplacesTheOlderOneWhereItIs) {
    StoreSetting();
    installInFolderWithBlanks();
    std::ofstream(folderWithBlanks / "Huevox.exe", std::ios::binary) << "old";
    std::ofstream(folderWithBlanks / "README.txt", std::ios::binary) << "old";
    install(newerSetup);
    EXPECT_TRUE(Bytes(folderWithBlanks / "Huevox.exe") == Bytes(HUEVOX_EXE));
    EXPECT_NE(Bytes(folderWithBlanks / "README.txt"), "old");
    EXPECT_FALSE(fs::exists(DefaultFolder()));
    EXPECT_EQ(Value(uninstallKey, "DisplayVersion"), HUEVOX_NEWER_VERSION);
    EXPECT_EQ(ShortcutTarget(), folderWithBlanks / "Huevox.exe");
    EXPECT_EQ(Value(settingsKey, "SortIndex"), "1");
}

TEST_F(Installer, RemovesItselfAndKeepsTheSettings) {
    StoreSetting();
    const auto before = Traces();
    install();
    ASSERT_NE(ChangeOfTraces(before), "");
    ASSERT_TRUE(Remove(DefaultFolder()));
    EXPECT_TRUE(Eventually([] { return !fs::exists(DefaultFolder()); }));
    EXPECT_BECOMES(ChangeOfTraces(before), "");
    EXPECT_EQ(Value(settingsKey, "SortIndex"), "1");
}

TEST_F(Installer, RemovesTheSettingsWhenAskedTo) {
    const auto before = Traces();
    StoreSetting();
    install();
    ASSERT_TRUE(Remove(DefaultFolder(), " /REMOVESETTINGS"));
    EXPECT_BECOMES(ChangeOfTraces(before), "");
    EXPECT_FALSE(HasKey("Software\\Quorvane"));
}

TEST_F(Installer, KeepsWhatTheUserHasPutIntoItsFolder) {
    install();
    std::ofstream(DefaultFolder() / "palette.txt") << "mine";
    ASSERT_TRUE(Remove(DefaultFolder()));
    EXPECT_BECOMES(fs::exists(DefaultFolder() / "Huevox.exe"), false);
    EXPECT_EQ(Bytes(DefaultFolder() / "palette.txt"), "mine");
    fs::remove_all(DefaultFolder());
}

TEST_F(Installer, RemovesItselfFromAFolderWithBlanks) {
    installInFolderWithBlanks();
    ASSERT_TRUE(Remove(folderWithBlanks));
    EXPECT_BECOMES(fs::exists(folderWithBlanks), false);
    EXPECT_FALSE(fs::exists(Shortcut()));
}
