// What happens to files that are dropped onto the main window?
#include "tests/driver/Dialogs.h"
#include "tests/driver/Dropping.h"
#include "tests/driver/Palettes.h"

namespace {

class DroppedFile : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        WriteContent(PathOf("mine.txt"), PaletteOf("mine", "1,2,3"));
        WriteContent(OtherPathOf("dropped.txt"), PaletteOf("dropped", "4,5,6"));
    }
};

constexpr const char* couldNotOpen = "Could not open. Check if file is in use or has been removed.";

std::string OpenRefusal(const std::string& path) {
    return "You tried to open the file\r\n\r\n" + path +
           "\r\n\r\nThis file has not been made in Huevox and cannot be opened in Huevox";
}

bool Holds(const std::string& path, std::string_view text) {
    return ContentOf(path).find(text) != std::string::npos;
}

void ExpectMine(const Huevox& huevox) {
    EXPECT_EQ(huevox.title(), "Huevox - mine.txt");
    EXPECT_EQ(huevox.text(Name(0)), "mine");
}

}  // namespace

TEST_F(DroppedFile, IsOpenedAndTheFirstOfSeveral) {
    const Huevox huevox;
    EXPECT_TRUE(TakesDrops(huevox.window()));
    Drop(huevox.window(), {OtherPathOf("dropped.txt"), PathOf("mine.txt")});
    EXPECT_BECOMES(huevox.title(), "Huevox - dropped.txt");
    EXPECT_BECOMES(huevox.sliders(), ColorOf(4, 5, 6));
    EXPECT_EQ(huevox.text(Name(5)), "dropped");
}

TEST_F(DroppedFile, HasTheFolderThatSaveGoesTo) {
    const Huevox huevox;
    OpenPalette(huevox, PathOf("mine.txt"));
    Drop(huevox.window(), {OtherPathOf("dropped.txt")});
    ASSERT_BECOMES(huevox.title(), "Huevox - dropped.txt");
    ChangeColor(huevox);
    PressSave();
    EXPECT_TRUE(Eventually([] { return Holds(OtherPathOf("dropped.txt"), "4,6,6"); }))
        << ContentOf(OtherPathOf("dropped.txt"));
}

TEST_F(DroppedFile, WaitsForTheQuestionWhetherToSave) {
    const Huevox huevox;
    OpenPalette(huevox, PathOf("mine.txt"));
    ChangeColor(huevox);
    Drop(huevox.window(), {OtherPathOf("dropped.txt")});
    AnswerQuestion(huevox, IDCANCEL);
    ExpectMine(huevox);
    Drop(huevox.window(), {OtherPathOf("dropped.txt")});
    AnswerQuestion(huevox, IDYES);
    EXPECT_BECOMES(huevox.title(), "Huevox - dropped.txt");
    EXPECT_TRUE(Holds(PathOf("mine.txt"), "1,3,3")) << ContentOf(PathOf("mine.txt"));
    ChangeColor(huevox);
    Drop(huevox.window(), {PathOf("mine.txt")});
    AnswerQuestion(huevox, IDNO);
    EXPECT_BECOMES(huevox.title(), "Huevox - mine.txt");
}

TEST_F(DroppedFile, LeavesAPaletteThatWasNotSavedAfterAll) {
    const Huevox huevox;
    ChangeColor(huevox);
    Drop(huevox.window(), {OtherPathOf("dropped.txt")});
    AnswerQuestion(huevox, IDYES);
    CancelFileDialog(huevox, saveTitle);
    WaitForReturn(huevox);
    EXPECT_EQ(huevox.title(), "Huevox - New palette");
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 1, 0));
}

TEST_F(DroppedFile, IsRefusedAsByOpenAndSaveGoesWhereItWent) {
    WriteContent(OtherPathOf("bad.txt"), std::string(100'000, '\0'));
    std::string longPalette = PaletteOf("long", "1,2,3");
    for (int line = 0; line < 1000; ++line) longPalette += "\r\n";
    WriteContent(OtherPathOf("long.txt"), longPalette);
    const Huevox huevox;
    Drop(huevox.window(), {OtherPathOf("long.txt")});
    CloseMessage(huevox, OpenRefusal(OtherPathOf("long.txt")));
    OpenPalette(huevox, PathOf("mine.txt"));
    Drop(huevox.window(), {OtherPathOf("bad.txt")});
    CloseMessage(huevox, OpenRefusal(OtherPathOf("bad.txt")));
    ExpectMine(huevox);
    ChangeColor(huevox);
    PressSave();
    EXPECT_TRUE(Eventually([] { return Holds(PathOf("mine.txt"), "1,3,3"); }));
}

TEST_F(DroppedFile, ThatCannotBeReadIsToldAndTheProgramGoesOn) {
    const Huevox huevox;
    OpenPalette(huevox, PathOf("mine.txt"));
    WriteContent(OtherPathOf("locked.txt"), PaletteOf("locked", "7,8,9"));
    const LockedFile locked(OtherPathOf("locked.txt"));
    for (const std::string& path :
         {std::string(otherFolder), OtherPathOf("missing.txt"), OtherPathOf("locked.txt")}) {
        Drop(huevox.window(), {path});
        CloseMessage(huevox, couldNotOpen);
        ExpectMine(huevox);
    }
}

TEST_F(DroppedFile, IsNotTakenInColourPickMode) {
    const Huevox huevox;
    OpenPalette(huevox, PathOf("mine.txt"));
    Click(huevox.control(IDC_chkColorPick));
    EXPECT_BECOMES(TakesDrops(huevox.window()), false);
    Drop(huevox.window(), {OtherPathOf("dropped.txt")});
    Click(huevox.control(IDC_chkColorPick));
    EXPECT_BECOMES(TakesDrops(huevox.window()), true);
    ExpectMine(huevox);
}

TEST_F(DroppedFile, IsNotTakenWhileADialogIsOpen) {
    const Huevox huevox;
    OpenPalette(huevox, PathOf("mine.txt"));
    PressOpen();
    ASSERT_NE(WaitForFileDialog(huevox, openTitle), nullptr);
    EXPECT_FALSE(TakesDrops(huevox.window()));
    Drop(huevox.window(), {OtherPathOf("dropped.txt")});
    CancelFileDialog(huevox, openTitle);
    WaitForReturn(huevox);
    EXPECT_BECOMES(TakesDrops(huevox.window()), true);
    ExpectMine(huevox);
}
