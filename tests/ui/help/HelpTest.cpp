// How does the program's help come to the screen?
#include <filesystem>

#include "tests/driver/FormatDialog.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/ReplacedFile.h"

namespace {

/// A copy of the program, without help at first, in a folder of its own.
class Help : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        StoreText("PromptToSave", "0");
        ASSERT_TRUE(::CopyFileA(HUEVOX_EXE, program.c_str(), FALSE));
    }

    const std::string program = OtherPathOf("Huevox.exe");
    const std::string helpFile = OtherPathOf("huevox.chm");
    const std::string calls = PathOf("viewer.txt");
};

constexpr const char* builtHelp = "huevox.chm";

/// Where Windows keeps its libraries for programs of the program's word length.
std::string SystemFolder() {
    DWORD kind = 0;
    EXPECT_TRUE(::GetBinaryTypeA(HUEVOX_EXE, &kind));
    return kind == SCS_32BIT_BINARY ? R"(C:\windows\syswow64\)" : R"(C:\windows\system32\)";
}

/// Makes Wine take the file of the viewer before its own, for as long as the value lives.
class FilesFirst {
public:
    FilesFirst() {
        EXPECT_EQ(::RegSetKeyValueA(HKEY_CURRENT_USER, overrides, "hhctrl.ocx", REG_SZ, order.data(),
                                    static_cast<DWORD>(order.size() + 1)),
                  ERROR_SUCCESS);
    }
    FilesFirst(const FilesFirst&) = delete;
    FilesFirst& operator=(const FilesFirst&) = delete;
    ~FilesFirst() { ::RegDeleteKeyValueA(HKEY_CURRENT_USER, overrides, "hhctrl.ocx"); }

private:
    static constexpr const char* overrides = "Software\\Wine\\DllOverrides";
    static constexpr std::string_view order = "native,builtin";
};

/// The help viewer of Windows is another, or none, for as long as the value lives.
class WithoutViewer {
public:
    WithoutViewer() : viewer(path()) {}
    explicit WithoutViewer(const char* standIn) : viewer(path(), standIn) {}

private:
    static std::string path() { return SystemFolder() + "hhctrl.ocx"; }

    FilesFirst filesFirst;
    ReplacedFile viewer;
};

/// The tests' current folder is another for as long as the value lives; programs that they start begin in it.
class In {
public:
    explicit In(const char* folder) : before(std::filesystem::current_path()) {
        std::filesystem::current_path(folder);
    }
    In(const In&) = delete;
    In& operator=(const In&) = delete;
    ~In() { std::filesystem::current_path(before); }

private:
    std::filesystem::path before;
};

HWND HelpWindow(const Huevox& huevox) { return huevox.form("HH Parent"); }

void ExpectHelp(const Huevox& huevox) {
    ASSERT_TRUE(Eventually([&] { return HelpWindow(huevox) != nullptr; }));
    EXPECT_BECOMES(TextOf(HelpWindow(huevox)), "Huevox Help");
    EXPECT_EQ(huevox.dialog(), nullptr);
}

/// The input behind the call for help has arrived, and the program has answered it.
void ExpectNothingButGoingOn(const Huevox& huevox) {
    Press(VK_LEFT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(254, 0, 0));
    EXPECT_TRUE(Throughout(500, [&] { return !huevox.dialog() && !HelpWindow(huevox); }));
    EXPECT_TRUE(huevox.isRunning());
}

}  // namespace

TEST_F(Help, OpensByItsShortcut) {
    const Huevox huevox;
    Press(VK_F1);
    ExpectHelp(huevox);
}

TEST_F(Help, OpensByItsMenuItem) {
    const Huevox huevox;
    Press('H', {VK_MENU});
    Press('H');
    ExpectHelp(huevox);
}

TEST_F(Help, OpensByItsToolBarButton) {
    const Huevox huevox;
    Click(huevox.toolButton(IDM_mnuHelpHelp));
    ExpectHelp(huevox);
}

TEST_F(Help, AskedForAgainStaysOneWindow) {
    const Huevox huevox;
    Click(huevox.toolButton(IDM_mnuHelpHelp));
    ExpectHelp(huevox);
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuHelpHelp, 0);
    EXPECT_TRUE(Throughout(1000, [&] { return huevox.formCount("HH Parent") <= 1; }));
    ExpectHelp(huevox);
}

TEST_F(Help, ClosesTogetherWithTheProgram) {
    const Huevox huevox;
    Press(VK_F1);
    ExpectHelp(huevox);
    const HWND help = HelpWindow(huevox);
    Close(huevox);
    EXPECT_FALSE(::IsWindow(help));
}

TEST_F(Help, IsLookedForBesideTheProgram) {
    ASSERT_TRUE(::CopyFileA(builtHelp, helpFile.c_str(), FALSE));
    const In elsewhere("C:\\windows");
    const Huevox huevox(program);
    Press(VK_F1);
    ExpectHelp(huevox);
}

TEST_F(Help, ThatIsMissingIsTheViewersToReport) {
    const Huevox huevox(program);
    Press(VK_F1);
    ExpectNothingButGoingOn(huevox);
    Close(huevox);
}

TEST_F(Help, ThatIsDamagedIsTheViewersToReport) {
    const std::string whole = ContentOf(builtHelp);
    ASSERT_GT(whole.size(), 10'000U);
    for (const std::string& damaged : {std::string(), whole.substr(0, whole.size() / 2),
                                       std::string(whole.size(), 'x'), whole.substr(0, 0x60)}) {
        WriteContent(helpFile, damaged);
        const Huevox huevox(program);
        Press(VK_F1);
        Press(VK_LEFT);
        EXPECT_BECOMES(huevox.sliders(), ColorOf(254, 0, 0)) << damaged.size();
        EXPECT_EQ(huevox.dialog(), nullptr) << damaged.size();
        Close(huevox);
    }
}

TEST_F(Help, WithoutAViewerIsTold) {
    const WithoutViewer none;
    const Huevox huevox;
    Press(VK_F1);
    const HWND message = WaitForMessage(huevox, "Problem with HTML Help.");
    EXPECT_TRUE(Eventually([&] { return ShowsIcon(message, IDI_EXCLAMATION); }));
    Answer(message, IDOK);
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
    ExpectNothingButGoingOn(huevox);
    Close(huevox);
}

TEST_F(Help, IsShownAndClosedByTheViewerOfTheSystem) {
    const WithoutViewer standIn(HUEVOX_STAND_IN_VIEWER);
    const Huevox huevox(program);
    Press(VK_F1);
    const std::string shown = "loaded\n0|" + helpFile + "|0|huevox1.htm\n";
    ASSERT_BECOMES(ContentOf(calls), shown);
    Close(huevox);
    EXPECT_EQ(ContentOf(calls), shown + "0||18|0\n");
}

TEST_F(Help, OpensAtThePageOfTheCustomFormatFromItsDialog) {
    const WithoutViewer standIn(HUEVOX_STAND_IN_VIEWER);
    const Huevox huevox(program);
    const FormatDialog dialog(huevox);
    Press('H', {VK_MENU});
    EXPECT_BECOMES(ContentOf(calls), "loaded\n0|" + helpFile + "|0|huevox10.htm\n");
    dialog.click(IDC_cmdCancel);
    Close(huevox);
}

TEST_F(Help, ThatWasNeverOpenedNeedsNoViewer) {
    const WithoutViewer standIn(HUEVOX_STAND_IN_VIEWER);
    const Huevox huevox(program);
    Close(huevox);
    EXPECT_FALSE(Exists(calls)) << ContentOf(calls);
}

TEST_F(Help, TakesNoViewerFromTheCurrentFolderOrTheProgramsOwn) {
    for (const std::string& folder : {PathOf(""), OtherPathOf("")}) {
        ASSERT_TRUE(::CopyFileA(HUEVOX_STAND_IN_VIEWER, (folder + "hhctrl.ocx").c_str(), FALSE));
    }
    ASSERT_TRUE(::CopyFileA(builtHelp, helpFile.c_str(), FALSE));
    const FilesFirst filesFirst;
    const In folder(paletteFolder);
    const Huevox huevox(program);
    Press(VK_F1);
    ExpectHelp(huevox);
    Close(huevox);
    EXPECT_FALSE(Exists(calls)) << ContentOf(calls);
}
