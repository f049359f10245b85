// How are palettes saved?
#include "tests/driver/Palettes.h"
#include "tests/ui/palette/NotepadOn.h"

namespace {

class SavingPalettes : public PaletteTest {};

constexpr const char* goldenFormat = "rgb %UR%/%LG%/%DB% (%LD%) %ur%";

}  // namespace

TEST_F(SavingPalettes, APaletteThatWasNeverSavedAsksForAFile) {
    const Huevox huevox;
    ChangeColor(huevox);
    SaveNewPalette(huevox, PathOf("Reds.txt"));
    EXPECT_TRUE(ContentOf(PathOf("Reds.txt")).starts_with("THIS FILE WAS MADE IN HUEVOX. DO NOT EDIT.\r\n"));
    EXPECT_EQ(CountFiles(paletteFolder, "*.tmp"), 0);
}

TEST_F(SavingPalettes, ASavedPaletteIsUnchanged) {
    const Huevox huevox;
    huevox.retype(Name(2), "leaf");
    ChangeColor(huevox);
    SaveNewPalette(huevox, PathOf("Reds.txt"));
    Close(huevox);
}

TEST_F(SavingPalettes, TheFileIsTheSameByteForByte) {
    StoreText("CustomFormat", goldenFormat);
    const Huevox huevox;
    WriteContent(PathOf("golden.txt"), TestFile("saved.txt"));
    OpenPalette(huevox, PathOf("golden.txt"));
    ChooseSaveAs();
    ChoosePath(huevox, saveTitle, OtherPathOf("copy.txt"));
    ASSERT_BECOMES(huevox.title(), "Huevox - copy.txt");
    EXPECT_EQ(ContentOf(OtherPathOf("copy.txt")), TestFile("saved.txt"));
}

TEST_F(SavingPalettes, SaveReplacesTheFileWithoutADialog) {
    const Huevox huevox;
    WriteContent(PathOf("p.txt"), PaletteOf("old", "1,2,3"));
    OpenPalette(huevox, PathOf("p.txt"));
    ChangeColor(huevox);
    Click(huevox.toolButton(IDM_mnuFileSave));
    EXPECT_TRUE(
        Eventually([] { return ContentOf(PathOf("p.txt")).find("old\r\n1,3,3\r\n") != std::string::npos; }));
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_EQ(huevox.title(), "Huevox - p.txt");
}

TEST_F(SavingPalettes, SaveGoesToTheFolderOfTheLastDialog) {
    const Huevox huevox;
    SaveNewPalette(huevox, PathOf("Reds.txt"));
    WriteContent(OtherPathOf("read me.txt"), "hello");
    Press('I', {VK_CONTROL});
    ChoosePath(huevox, notepadTitle, OtherPathOf("read me.txt"));
    {
        const NotepadOn notepad("read me");
        EXPECT_NE(notepad.title, "");
    }
    ChangeColor(huevox);
    PressSave();
    EXPECT_TRUE(Eventually([] { return Exists(OtherPathOf("Reds.txt")); }));
    EXPECT_EQ(huevox.title(), "Huevox - Reds.txt");
}

TEST_F(SavingPalettes, ACancelledDialogLeavesTheFolderOfSave) {
    const Huevox huevox;
    SaveNewPalette(huevox, OtherPathOf("Reds.txt"));
    PressOpen();
    CancelFileDialog(huevox, openTitle);
    ChangeColor(huevox);
    PressSave();
    EXPECT_TRUE(
        Eventually([] { return ContentOf(OtherPathOf("Reds.txt")).find("255,1,0") != std::string::npos; }));
    EXPECT_FALSE(Exists(PathOf("Reds.txt")));
}

TEST_F(SavingPalettes, ACancelledDialogHoldsNoFolder) {
    const Huevox huevox;
    PressOpen();
    CancelFileDialog(huevox, openTitle);
    EXPECT_TRUE(::RemoveDirectoryA(otherFolder));
    // The current folder of any program cannot be removed, nor for a moment the one that a dialog has shown.
    EXPECT_TRUE(Eventually([] { return ::RemoveDirectoryA(paletteFolder) != FALSE; }));
}

TEST_F(SavingPalettes, TheDialogOpensInTheStandardFolderAndAddsTheExtension) {
    const Huevox huevox;
    PressSave();
    ChoosePath(huevox, saveTitle, "Blues");
    EXPECT_BECOMES(huevox.title(), "Huevox - Blues.txt");
    EXPECT_TRUE(Exists(PathOf("Blues.txt")));
}

TEST_F(SavingPalettes, TheDialogOpensInTheStandardFolderWhereverTheLastOneWas) {
    WriteContent(OtherPathOf("p.txt"), PaletteOf("mine", "1,2,3"));
    const Huevox huevox;
    OpenPalette(huevox, OtherPathOf("p.txt"));
    ChooseSaveAs();
    ChoosePath(huevox, saveTitle, "Blues");
    EXPECT_BECOMES(huevox.title(), "Huevox - Blues.txt");
    EXPECT_TRUE(Exists(PathOf("Blues.txt")));
}

TEST_F(SavingPalettes, ANameWithAnotherExtensionIsKept) {
    const Huevox huevox;
    PressSave();
    ChoosePath(huevox, saveTitle, "Blues.pal");
    EXPECT_BECOMES(huevox.title(), "Huevox - Blues.pal");
    EXPECT_TRUE(Exists(PathOf("Blues.pal")));
}

TEST_F(SavingPalettes, AnExistingFileIsReplacedOnlyWhenTheUserSaysSo) {
    WriteContent(PathOf("Reds.txt"), "precious");
    const Huevox huevox;
    PressSave();
    TypePath(huevox, saveTitle, PathOf("Reds.txt"));
    AnswerReplacing(huevox, IDNO);
    CancelFileDialog(huevox, saveTitle);
    EXPECT_EQ(ContentOf(PathOf("Reds.txt")), "precious");
    EXPECT_EQ(huevox.title(), "Huevox - New palette");
    PressSave();
    TypePath(huevox, saveTitle, PathOf("Reds.txt"));
    AnswerReplacing(huevox, IDYES);
    EXPECT_BECOMES(huevox.title(), "Huevox - Reds.txt");
    EXPECT_NE(ContentOf(PathOf("Reds.txt")), "precious");
}

TEST_F(SavingPalettes, NameBoxesAreWhiteAgain) {
    const Huevox huevox;
    huevox.retype(Name(0), "navy");
    ChangeColor(huevox);
    ASSERT_BECOMES(huevox.backColor(Name(0)), highlight);
    PressSave();
    ChoosePath(huevox, saveTitle, PathOf("Navy.txt"));
    EXPECT_BECOMES(huevox.backColor(Name(0)), white);
}

TEST_F(SavingPalettes, AnUnusableStandardFolderStillOpensTheDialog) {
    const Huevox huevox;
    ::MoveFileA(paletteFolder, "C:\\Huevox Palettes 2");
    PressSave();
    const HWND dialog = WaitForFileDialog(huevox, saveTitle);
    ::MoveFileA("C:\\Huevox Palettes 2", paletteFolder);
    TypePath(huevox, saveTitle, PathOf("Reds.txt"));
    EXPECT_TRUE(Eventually([&] { return !::IsWindow(dialog); }));
    EXPECT_BECOMES(huevox.title(), "Huevox - Reds.txt");
}
