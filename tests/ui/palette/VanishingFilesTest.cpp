// What does the program do when files and folders go, or are locked, behind its back?
#include "tests/driver/Below.h"
#include "tests/driver/Palettes.h"

namespace {

class VanishingFiles : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        WriteContent(OtherPathOf("mine.txt"), PaletteOf("mine", "1,2,3"));
        WriteContent(PathOf("theirs.txt"), PaletteOf("theirs", "9,9,9"));
    }

    static bool HoldsSaved(const std::string& path, const char* colorLine) {
        const std::string content = ContentOf(path);
        return content.ends_with("\r\nCustom:\r\n") && content.find(colorLine) != std::string::npos;
    }
};

}  // namespace

TEST_F(VanishingFiles, AFileThatAnotherProgramHasLockedEndsTheProgramWithTheOneMessage) {
    const HANDLE locked = ::CreateFileA(OtherPathOf("mine.txt").c_str(), GENERIC_READ | GENERIC_WRITE, 0,
                                        nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(locked, INVALID_HANDLE_VALUE);
    const Huevox huevox;
    PressOpen();
    TypePath(huevox, openTitle, OtherPathOf("mine.txt"));
    ASSERT_TRUE(Eventually([&] { return huevox.dialog() && TextOf(huevox.dialog()) == "Huevox"; }));
    CloseMessage(huevox, "Huevox encountered an unexpected error and must close.");
    EXPECT_EQ(huevox.waitForEnd(), 1);
    ::CloseHandle(locked);
}

TEST_F(VanishingFiles, AFileThatIsGoneSinceItWasOpenedIsMadeAgainBySaving) {
    const Huevox huevox;
    OpenPalette(huevox, OtherPathOf("mine.txt"));
    ASSERT_TRUE(::DeleteFileA(OtherPathOf("mine.txt").c_str()));
    ChangeColor(huevox);
    Press('S', {VK_CONTROL});
    EXPECT_TRUE(Eventually([] { return HoldsSaved(OtherPathOf("mine.txt"), "\r\n1,3,3\r\n"); }));
    EXPECT_EQ(huevox.dialogCount(), 0);
}

TEST_F(VanishingFiles, ACurrentFolderThatIsGoneStopsNoCommand) {
    const Huevox huevox;
    OpenPalette(huevox, OtherPathOf("mine.txt"));
    RunBelow("rm", "-rf \"" + SystemPathOf(L"C:\\Huevox Palettes\\other") + '"');
    ASSERT_TRUE(Eventually([] { return !Exists(otherFolder); }));
    PressOpen();
    CancelFileDialog(huevox, openTitle);
    PressNew();
    ExpectNewPalette(huevox);
    OpenPalette(huevox, PathOf("theirs.txt"));
    ChangeColor(huevox);
    Press('S', {VK_CONTROL});
    EXPECT_TRUE(Eventually([] { return HoldsSaved(PathOf("theirs.txt"), "\r\n9,10,9\r\n"); }));
    EXPECT_EQ(huevox.dialogCount(), 0);
    PressClose(huevox);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(VanishingFiles, AStandardFolderThatIsGoneWhileTheProgramRunsStopsNoDialog) {
    const Huevox huevox;
    OpenPalette(huevox, OtherPathOf("mine.txt"));
    RunBelow("rm", "-rf \"" + SystemPathOf(L"C:\\Huevox Palettes") + '"');
    ASSERT_TRUE(Eventually([] { return !Exists(paletteFolder); }));
    for (int time = 0; time < 2; ++time) {
        PressOpen();
        CancelFileDialog(huevox, openTitle);
    }
    ChangeColor(huevox);
    Press('S', {VK_CONTROL});
    CloseMessage(huevox, couldNotSave);
    ExpectStill(huevox, ColorOf(1, 3, 3));
}
