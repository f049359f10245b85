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
    const LockedFile locked(OtherPathOf("mine.txt"));
    const Huevox huevox;
    PressOpen();
    TypePath(huevox, openTitle, OtherPathOf("mine.txt"));
    ExpectEndByError(huevox);
}

TEST_F(VanishingFiles, AFileThatIsGoneSinceItWasOpenedIsMadeAgainBySaving) {
    const Huevox huevox;
    OpenPalette(huevox, OtherPathOf("mine.txt"));
    ASSERT_TRUE(::DeleteFileA(OtherPathOf("mine.txt").c_str()));
    ChangeColor(huevox);
    PressSave();
    EXPECT_TRUE(Eventually([] { return HoldsSaved(OtherPathOf("mine.txt"), "\r\n1,3,3\r\n"); }));
    EXPECT_EQ(huevox.dialogCount(), 0);
}

TEST_F(VanishingFiles, ACurrentFolderThatIsGoneStopsNoCommand) {
    const Huevox huevox;
    OpenPalette(huevox, OtherPathOf("mine.txt"));
    RemoveFolderBelow(otherFolder);
    PressOpen();
    CancelFileDialog(huevox, openTitle);
    PressNew();
    ExpectNewPalette(huevox);
    OpenPalette(huevox, PathOf("theirs.txt"));
    ChangeColor(huevox);
    PressSave();
    EXPECT_TRUE(Eventually([] { return HoldsSaved(PathOf("theirs.txt"), "\r\n9,10,9\r\n"); }));
    EXPECT_EQ(huevox.dialogCount(), 0);
    PressClose(huevox);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(VanishingFiles, AStandardFolderThatIsGoneWhileTheProgramRunsStopsNoDialog) {
    const Huevox huevox;
    OpenPalette(huevox, OtherPathOf("mine.txt"));
    RemoveFolderBelow(paletteFolder);
    for (int time = 0; time < 2; ++time) {
        PressOpen();
        CancelFileDialog(huevox, openTitle);
    }
    ChangeColor(huevox);
    PressSave();
    CloseMessage(huevox, couldNotSave);
    ExpectStill(huevox, ColorOf(1, 3, 3));
}
