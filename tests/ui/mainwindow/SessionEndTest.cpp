// What becomes of the program when the session ends while something is open?
#include "tests/driver/FormatDialog.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/SessionEnd.h"

namespace {

class SessionEnd : public PaletteTest {
protected:
    static void ExpectEnd(const Huevox& huevox) {
        ::SendMessageTimeoutA(huevox.window(), WM_ENDSESSION, TRUE, 0, SMTO_NORMAL, 10'000, nullptr);
        EXPECT_EQ(huevox.waitForEnd(), 0);
    }
};

}  // namespace

TEST_F(SessionEnd, NoLeavesTheFileAsItWas) {
    const std::string before = PaletteOf("mine", "1,2,3");
    WriteContent(PathOf("mine.txt"), before);
    const Huevox huevox;
    OpenPalette(huevox, PathOf("mine.txt"));
    ChangeColor(huevox);
    auto mayEnd = AskForSessionEnd(huevox);
    AnswerQuestion(huevox, IDNO);
    EXPECT_TRUE(mayEnd.get());
    ExpectEnd(huevox);
    EXPECT_EQ(ContentOf(PathOf("mine.txt")), before);
}

TEST_F(SessionEnd, YesForANewPaletteAsksForAFileAndSavesIt) {
    const Huevox huevox;
    ChangeColor(huevox);
    auto mayEnd = AskForSessionEnd(huevox);
    AnswerQuestion(huevox, IDYES);
    ChoosePath(huevox, saveTitle, PathOf("mine.txt"));
    EXPECT_TRUE(mayEnd.get());
    ExpectEnd(huevox);
    EXPECT_NE(ContentOf(PathOf("mine.txt")).find("\r\n255,1,0\r\n"), std::string::npos);
}

TEST_F(SessionEnd, EndsTheProgramOverAnOpenFileDialog) {
    const Huevox huevox;
    PressOpen();
    ASSERT_TRUE(WaitForFileDialog(huevox, openTitle));
    EXPECT_TRUE(AskForSessionEnd(huevox).get());
    ExpectEnd(huevox);
}

TEST_F(SessionEnd, EndsTheProgramOverAnOpenDialogOfItsOwn) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    EXPECT_TRUE(AskForSessionEnd(huevox).get());
    ExpectEnd(huevox);
}

TEST_F(SessionEnd, EndsTheProgramOverAMessage) {
    const Huevox huevox;
    ASSERT_TRUE(BringRefusal(huevox));
    EXPECT_TRUE(AskForSessionEnd(huevox).get());
    ExpectEnd(huevox);
}

TEST_F(SessionEnd, DoesNotComeWhileTheQuestionWhetherToSaveIsOpen) {
    const Huevox huevox;
    ChangeColor(huevox);
    PressClose(huevox);
    const HWND asked = huevox.waitForDialog();
    ASSERT_TRUE(asked);
    EXPECT_FALSE(AskForSessionEnd(huevox).get());
    EXPECT_EQ(huevox.dialogCount(), 1);
    AnswerQuestion(huevox, IDCANCEL);
    ExpectStill(huevox, ColorOf(255, 1, 0));
}
