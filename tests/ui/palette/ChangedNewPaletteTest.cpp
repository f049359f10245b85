// When is saving a new palette offered, and what does each answer do?
#include "tests/driver/Palettes.h"

namespace {

/// A palette that the user has changed since it was begun.
class ChangedNewPalette : public PaletteTest {};

}  // namespace

TEST_F(ChangedNewPalette, CancellingSaveAsDuringNewLeavesItInPlace) {
    const Huevox huevox;
    ChangeColor(huevox);
    PressNew();
    AnswerQuestion(huevox, IDYES);
    CancelFileDialog(huevox, saveTitle);
    ExpectStill(huevox, ColorOf(255, 1, 0));
    EXPECT_EQ(huevox.title(), "Huevox - New palette");
}

TEST_F(ChangedNewPalette, SavedDuringNewGivesWayToANewOne) {
    const Huevox huevox;
    ChangeColor(huevox);
    PressNew();
    AnswerQuestion(huevox, IDYES);
    ChoosePath(huevox, saveTitle, PathOf("Reds.txt"));
    ExpectNewPalette(huevox);
    EXPECT_NE(ContentOf(PathOf("Reds.txt")).find("255,1,0"), std::string::npos);
}

TEST_F(ChangedNewPalette, CancellingSaveAsDuringOpenGoesOnToOpen) {
    WriteContent(PathOf("theirs.txt"), PaletteOf("theirs", "9,9,9"));
    const Huevox huevox;
    ChangeColor(huevox);
    PressOpen();
    AnswerQuestion(huevox, IDYES);
    CancelFileDialog(huevox, saveTitle);
    ChoosePath(huevox, openTitle, PathOf("theirs.txt"));
    EXPECT_BECOMES(huevox.title(), "Huevox - theirs.txt");
}

TEST_F(ChangedNewPalette, CancellingSaveAsDuringClosingStillCloses) {
    const Huevox huevox;
    ChangeColor(huevox);
    PressClose(huevox);
    AnswerQuestion(huevox, IDYES);
    CancelFileDialog(huevox, saveTitle);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(ChangedNewPalette, SavedDuringClosingIsOnTheDisk) {
    const Huevox huevox;
    ChangeColor(huevox);
    PressClose(huevox);
    AnswerQuestion(huevox, IDYES);
    TypePath(huevox, saveTitle, PathOf("Reds.txt"));
    EXPECT_EQ(huevox.waitForEnd(), 0);
    EXPECT_NE(ContentOf(PathOf("Reds.txt")).find("255,1,0"), std::string::npos);
}

TEST_F(ChangedNewPalette, AChangedNameAloneIsAskedFor) {
    const Huevox huevox;
    huevox.retype(Name(5), "violet");
    PressNew();
    AnswerQuestion(huevox, IDNO);
    ExpectNewPalette(huevox);
}

TEST_F(ChangedNewPalette, UnchangedAgainAsksNothing) {
    const Huevox huevox;
    ChangeColor(huevox);
    Press(VK_LEFT);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    PressClose(huevox);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}
