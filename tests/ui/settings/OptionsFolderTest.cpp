// How does the user change the standard folder, and what is done with it?
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <filesystem>

#include "tests/driver/OptionsDialog.h"
#include "tests/driver/Palettes.h"

namespace {

class OptionsFolder : public PaletteTest {};

constexpr const char* newFile = "saved by a test of the options.txt";

bool IsDesktop(const std::string& folder) { return folder.ends_with("\\Desktop"); }

/// A folder whose path has that many characters, below the standard folder of the tests.
std::string LongFolder(std::size_t length) {
    std::string path = paletteFolder;
    while (path.size() < length) {
        const std::size_t part = std::min<std::size_t>(60, length - path.size() - 1);
        path += '\\' + std::string(part, 'x');
        ::CreateDirectoryA(path.c_str(), nullptr);
    }
    return path;
}

/// A folder on the desktop, where the folder picker begins, until it is removed or the value ends.
class FolderOnTheDesktop {
public:
    FolderOnTheDesktop() { EXPECT_TRUE(::CreateDirectoryA(path().c_str(), nullptr)); }
    FolderOnTheDesktop(const FolderOnTheDesktop&) = delete;
    FolderOnTheDesktop& operator=(const FolderOnTheDesktop&) = delete;
    ~FolderOnTheDesktop() { remove(); }

    static std::string path() {
        std::array<char, MAX_PATH> desktop{};
        ::SHGetSpecialFolderPathA(nullptr, desktop.data(), CSIDL_DESKTOPDIRECTORY, FALSE);
        return std::string(desktop.data()) + '\\' + name;
    }
    /// Types its name in the picker's tree.
    static void selectIn(const Huevox& huevox, HWND picker) {
        constexpr int tree = 14145;
        Press(VK_TAB, {VK_SHIFT});
        ASSERT_BECOMES(huevox.focus(), ::GetDlgItem(picker, tree));
        Type(name);
    }
    static void remove() { ::RemoveDirectoryA(path().c_str()); }

private:
    static constexpr const char* name = "zz";
};

}  // namespace

TEST_F(OptionsFolder, ThePickersChoiceIsShownAndStoredByOk) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.leavePicker(options.openPicker(), VK_RETURN);
    const std::string chosen = options.folder();
    EXPECT_TRUE(IsDesktop(chosen)) << chosen;
    EXPECT_EQ(StoredText("StandardFolder"), paletteFolder);
    options.close(IDC_cmdOK);
    EXPECT_EQ(StoredText("StandardFolder"), chosen);
    options.open();
    EXPECT_EQ(options.folder(), chosen);
    options.close(IDC_cmdCancel);
}

TEST_F(OptionsFolder, TheNextFileDialogUsesIt) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.leavePicker(options.openPicker(), VK_RETURN);
    const std::string saved = options.folder() + '\\' + newFile;
    options.close(IDC_cmdOK);
    PressSave();
    ChoosePath(huevox, saveTitle, newFile);
    EXPECT_BECOMES(Exists(saved), true);
    EXPECT_FALSE(Exists(PathOf(newFile)));
    ::DeleteFileA(saved.c_str());
}

TEST_F(OptionsFolder, CancelDiscardsThePickersChoice) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.leavePicker(options.openPicker(), VK_RETURN);
    EXPECT_TRUE(IsDesktop(options.folder()));
    options.close(IDC_cmdCancel);
    EXPECT_EQ(StoredText("StandardFolder"), paletteFolder);
    PressSave();
    ChoosePath(huevox, saveTitle, newFile);
    EXPECT_BECOMES(Exists(PathOf(newFile)), true);
    options.open();
    EXPECT_EQ(options.folder(), paletteFolder);
    options.close(IDC_cmdCancel);
}

TEST_F(OptionsFolder, ACancelledPickerLeavesTheFolder) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.leavePicker(options.openPicker(), VK_ESCAPE);
    EXPECT_EQ(options.folder(), paletteFolder);
    options.close(IDC_cmdOK);
    EXPECT_EQ(StoredText("StandardFolder"), paletteFolder);
}

TEST_F(OptionsFolder, AFolderOfThePickersTreeIsShown) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    const FolderOnTheDesktop chosen;
    const HWND picker = options.openPicker();
    FolderOnTheDesktop::selectIn(huevox, picker);
    options.leavePicker(picker, VK_RETURN);
    EXPECT_EQ(options.folder(), FolderOnTheDesktop::path());
    EXPECT_EQ(huevox.dialogCount(), 0);
}

TEST_F(OptionsFolder, AChoiceThatTheNextStartWouldRefuseIsRefusedAtOnce) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    const FolderOnTheDesktop chosen;
    const HWND picker = options.openPicker();
    FolderOnTheDesktop::selectIn(huevox, picker);
    FolderOnTheDesktop::remove();
    Press(VK_RETURN);
    const HWND box = WaitForMessage(huevox, "This folder cannot be used.");
    ASSERT_TRUE(box);
    EXPECT_TRUE(Eventually([&] { return ShowsIcon(box, IDI_EXCLAMATION); }));
    EXPECT_EQ(::GetWindow(box, GW_OWNER), options.window());
    Answer(box, IDOK);
    EXPECT_BECOMES(options.focused(), IDC_cmdChange);
    EXPECT_EQ(options.folder(), paletteFolder);
    options.close(IDC_cmdOK);
    EXPECT_EQ(StoredText("StandardFolder"), paletteFolder);
}

TEST_F(OptionsFolder, ThePickerStandsOverTheDialog) {
    constexpr int titleLine = 14146;
    const Huevox huevox;
    const OptionsDialog options(huevox);
    Click(options.control(IDC_cmdChange));
    const HWND picker = huevox.waitForDialog();
    ASSERT_BECOMES(::GetForegroundWindow(), picker);
    EXPECT_EQ(::GetWindow(picker, GW_OWNER), options.window());
    EXPECT_EQ(TextOf(::GetDlgItem(picker, titleLine)), "C:\\");
    EXPECT_FALSE(::IsWindowEnabled(options.window()));
    EXPECT_FALSE(::IsWindowEnabled(huevox.window()));
    options.leavePicker(picker, VK_ESCAPE);
    EXPECT_TRUE(::IsWindowEnabled(options.window()));
    EXPECT_FALSE(::IsWindowEnabled(huevox.window()));
}

TEST_F(OptionsFolder, TheListKeepsItsChoiceAfterThePicker) {
    const Huevox huevox;
    const OptionsDialog options(huevox);
    options.choose(8);
    options.turnOn(IDC_optNo);
    options.leavePicker(options.openPicker(), VK_RETURN);
    // What the return has posted has been handled when the keys behind it have.
    Press('S', {VK_MENU});
    Press(VK_DOWN);
    EXPECT_BECOMES(options.format(), 9);
    EXPECT_BECOMES(options.example(), "ColorTranslator.FromWin32(52479)");
    EXPECT_TRUE(options.isOn(IDC_optNo));
}

TEST_F(OptionsFolder, AFolderThatIsGoneIsShownAsTheTruthOfTheDesktop) {
    const Huevox huevox;
    std::filesystem::remove_all(paletteFolder);
    PressOpen();
    CancelFileDialog(huevox, openTitle);
    const OptionsDialog options(huevox);
    EXPECT_EQ(options.folder(), "True");
    options.close(IDC_cmdOK);
    EXPECT_EQ(StoredText("StandardFolder"), "True");
}

TEST_F(OptionsFolder, TheLongestPathIsKeptWholeAndTold) {
    // The closing NUL counts, too.
    const std::string longest = LongFolder(MAX_PATH - 1);
    ASSERT_EQ(longest.size(), 259U);
    StoreText("StandardFolder", longest);
    const Huevox huevox;
    const OptionsDialog options(huevox);
    EXPECT_EQ(options.folder(), longest);
    MoveMouse(CenterOf(options.control(IDC_lblSelectedStandardFolder)));
    EXPECT_BECOMES(huevox.toolTip(), longest);
    StoreText("StandardFolder", "other");
    options.close(IDC_cmdOK);
    EXPECT_EQ(StoredText("StandardFolder"), longest);
}
