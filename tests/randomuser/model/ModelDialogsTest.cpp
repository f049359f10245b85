#include "tests/randomuser/model/SoakModel.h"

TEST_F(SoakModel, AsksBeforeAChangedPaletteGoes) {
    moveRed();
    play({Kind::newPalette});
    play({Kind::answer, 0, 2});
    EXPECT_EQ(model.current(), ColorOf(254, 0, 0));
    play({Kind::newPalette});
    play({Kind::answer, 0, yes});
    EXPECT_EQ(model.look().box.title, "Save Palette As");
    play({Kind::cancelDialog});
    EXPECT_EQ(model.current(), ColorOf(254, 0, 0));
    play({Kind::newPalette});
    play({Kind::answer, 0, no});
    EXPECT_EQ(model.current(), ColorOf(255, 0, 0));
}

TEST_F(SoakModel, SavesWhereTheLastDialogWas) {
    play({Kind::savePaletteAs});
    chooseFile("one.txt");
    EXPECT_EQ(model.look().title, "Huevox - one.txt");
    play({Kind::openInNotepad});
    chooseFile("other\\some.txt");
    play({Kind::savePalette});
    EXPECT_TRUE(model.files().contains(std::string(secondFolder) + "\\one.txt"));
}

TEST_F(SoakModel, AsksBeforeAFileIsReplacedAndReportsOneThatCannotBe) {
    play({Kind::savePaletteAs});
    chooseFile("locked.txt");
    EXPECT_TRUE(model.look().box.text.starts_with("File already exists."));
    play({Kind::answer, 0, yes});
    EXPECT_TRUE(model.look().box.text.starts_with("Could not save."));
    play({Kind::answer, 0, 1});
    EXPECT_EQ(model.look().title, "Huevox - New palette");
}

TEST_F(SoakModel, RefusesALongFileUntilAPaletteHasBeenOpened) {
    open("long.txt");
    EXPECT_TRUE(model.look().box.text.starts_with("You tried to open the file"));
    play({Kind::answer, 0, 1});
    open("old.txt");
    EXPECT_EQ(model.look().marks.names[2], "grey");
    open("long.txt");
    EXPECT_EQ(model.look().title, "Huevox - long.txt");
    open("letter.txt");
    play({Kind::answer, 0, 1});
    open("long.txt");
    EXPECT_TRUE(model.look().box.isOpen());
}

TEST_F(SoakModel, EndsWithAFileThatIsNotThere) {
    open("nowhere.txt");
    EXPECT_EQ(model.look().box.text, "Huevox encountered an unexpected error and must close.");
    play({Kind::answer, 0, 1});
    EXPECT_FALSE(model.look().isRunning);
    EXPECT_EQ(model.look().exitCode, 1);
    EXPECT_TRUE(model.isPossible({Kind::start}));
}

TEST_F(SoakModel, TakesOptionsByOkOnly) {
    play({Kind::openOptions});
    play({Kind::chooseRow, 0, 3});
    play({Kind::chooseOption, 0, 1});
    EXPECT_FALSE(model.look().box.asksToSave);
    play({Kind::closeDialog, 0, 2});
    play({Kind::openOptions});
    EXPECT_TRUE(model.look().box.asksToSave);
    EXPECT_EQ(model.look().box.row, 0);
    play({Kind::chooseOption, 0, 1});
    play({Kind::chooseOption, 0, 3});
    play({Kind::closeDialog, 1, 1});
    moveRed();
    play({Kind::openPicker, 2});
    EXPECT_FALSE(model.isPossible({Kind::swatch, 2, 1}));
    play({Kind::comeBack});
    play({Kind::close});
    EXPECT_FALSE(model.look().isRunning);
}

TEST_F(SoakModel, ShowsANewTemplateAtOnceAndTheStoredNotationInTheOptions) {
    play({Kind::notation, 0, 11});
    play({Kind::openOptions});
    play({Kind::chooseRow, 0, 5});
    play({Kind::closeDialog, 0, 1});
    play({Kind::openOptions});
    EXPECT_EQ(model.look().box.row, 0);
    play({Kind::closeDialog, 0, 2});
    play({Kind::openFormat});
    play({Kind::typeFormat, 0, 0, "x"});
    play({Kind::insertToken, 0, 6});
    EXPECT_EQ(model.look().box.text, "x%DR%");
    play({Kind::closeDialog, 0, 1});
    EXPECT_EQ(model.look().preview, "x255");
    play({Kind::openOptions});
    EXPECT_EQ(model.look().box.row, 5);
}
