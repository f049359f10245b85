// What do Undo and Redo mean for a palette's file?
#include "tests/driver/Palettes.h"
#include "tests/driver/Undoing.h"

namespace {

class UndoneChanges : public PaletteTest {};

/// The window takes input, and nothing has been taken back: one step of the blue slider is all that changes.
void ExpectNothingToUndo(const Huevox& huevox, const Color& color) {
    huevox.focusSlider(IDC_hsbBlue);
    PressUndo();
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(color.red, color.green, color.blue + 1));
    PressRedo();
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(color.red, color.green, color.blue + 2));
}

}  // namespace

TEST_F(UndoneChanges, ToWhatWasSavedLeaveThePaletteUnchanged) {
    const Huevox huevox;
    ChangeColor(huevox);
    SaveNewPalette(huevox, PathOf("mine.txt"));
    ChangeColor(huevox);
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 1, 0));
    Close(huevox);
}

TEST_F(UndoneChanges, PastWhatWasSavedAreOffered) {
    const Huevox huevox;
    ChangeColor(huevox);
    SaveNewPalette(huevox, PathOf("mine.txt"));
    PressUndo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    PressNew();
    AnswerQuestion(huevox, IDCANCEL);
    PressRedo();
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 1, 0));
    Close(huevox);
}

TEST_F(UndoneChanges, SavingPartsWhatIsTypedIntoOneBox) {
    WriteContent(PathOf("mine.txt"), PaletteOf("mine", "1,2,3"));
    const Huevox huevox;
    OpenPalette(huevox, PathOf("mine.txt"));
    huevox.retype(Name(0), "one");
    PressSave();
    ASSERT_TRUE(Eventually([] { return ContentOf(PathOf("mine.txt")).find("one") != std::string::npos; }));
    Type("two");
    ASSERT_BECOMES(huevox.text(Name(0)), "onetwo");
    huevox.focusSlider(IDC_hsbRed);
    PressUndo();
    ASSERT_BECOMES(huevox.text(Name(0)), "one");
    PressUndo();
    EXPECT_BECOMES(huevox.text(Name(0)), "mine");
}

TEST_F(UndoneChanges, ANewPaletteHasNone) {
    const Huevox huevox;
    ChangeColor(huevox);
    PressNew();
    AnswerQuestion(huevox, IDNO);
    ASSERT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
    ExpectNothingToUndo(huevox, ColorOf(255, 0, 0));
}

TEST_F(UndoneChanges, AnOpenedPaletteHasNone) {
    WriteContent(PathOf("mine.txt"), PaletteOf("mine", "1,2,3"));
    const Huevox huevox;
    OpenPalette(huevox, PathOf("mine.txt"));
    ASSERT_BECOMES(huevox.sliders(), ColorOf(1, 2, 3));
    ExpectNothingToUndo(huevox, ColorOf(1, 2, 3));
}

TEST_F(UndoneChanges, ARefusedFileKeepsThem) {
    WriteContent(PathOf("letter.txt"), "Dear all");
    const Huevox huevox;
    ChangeColor(huevox);
    PressOpen();
    AnswerQuestion(huevox, IDNO);
    ChoosePath(huevox, openTitle, PathOf("letter.txt"));
    const HWND refusal = huevox.waitForDialog();
    ASSERT_TRUE(refusal);
    Answer(refusal, IDOK);
    PressUndo();
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 0, 0));
}
