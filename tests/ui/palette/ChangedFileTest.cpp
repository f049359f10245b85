// When is saving a palette that has a file offered, and what does each answer do?
#include "tests/driver/Palettes.h"
#include "tests/driver/SessionEnd.h"

namespace {

/// A palette that the user has changed since it was opened from a file.
class ChangedFile : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        WriteContent(PathOf("mine.txt"), before);
        WriteContent(PathOf("theirs.txt"), PaletteOf("theirs", "9,9,9"));
    }

    static void OpenAndChange(const Huevox& huevox) {
        OpenPalette(huevox, PathOf("mine.txt"));
        ChangeColor(huevox);
    }
    static bool IsSaved() {
        return ContentOf(PathOf("mine.txt")).find("mine\r\n1,3,3\r\n") != std::string::npos;
    }
    static bool IsUntouched() { return ContentOf(PathOf("mine.txt")) == before; }

    inline static const std::string before = PaletteOf("mine", "1,2,3");
};

}  // namespace

TEST_F(ChangedFile, NewYesSavesAndBeginsANewOne) {
    const Huevox huevox;
    OpenAndChange(huevox);
    Click(huevox.toolButton(IDM_mnuFileNew));
    AnswerQuestion(huevox, IDYES);
    ExpectNewPalette(huevox);
    EXPECT_TRUE(IsSaved());
}

TEST_F(ChangedFile, ASaveAsThatWasCancelledBeforeDoesNotStopNew) {
    const Huevox huevox;
    OpenAndChange(huevox);
    ChooseSaveAs();
    CancelFileDialog(huevox, saveTitle);
    PressNew();
    AnswerQuestion(huevox, IDYES);
    ExpectNewPalette(huevox);
    EXPECT_TRUE(IsSaved());
}

TEST_F(ChangedFile, NewNoBeginsANewOne) {
    const Huevox huevox;
    OpenAndChange(huevox);
    PressNew();
    AnswerQuestion(huevox, IDNO);
    ExpectNewPalette(huevox);
    EXPECT_TRUE(IsUntouched());
}

TEST_F(ChangedFile, NewCancelKeepsIt) {
    const Huevox huevox;
    OpenAndChange(huevox);
    PressNew();
    AnswerQuestion(huevox, IDCANCEL);
    ExpectStill(huevox, ColorOf(1, 3, 3));
    EXPECT_EQ(huevox.title(), "Huevox - mine.txt");
    EXPECT_TRUE(IsUntouched());
}

TEST_F(ChangedFile, OpenYesSavesAndOpens) {
    const Huevox huevox;
    OpenAndChange(huevox);
    PressOpen();
    AnswerQuestion(huevox, IDYES);
    ChoosePath(huevox, openTitle, PathOf("theirs.txt"));
    EXPECT_BECOMES(huevox.title(), "Huevox - theirs.txt");
    EXPECT_TRUE(IsSaved());
}

TEST_F(ChangedFile, OpenNoOpensAndACancelledDialogKeepsIt) {
    const Huevox huevox;
    OpenAndChange(huevox);
    PressOpen();
    AnswerQuestion(huevox, IDNO);
    CancelFileDialog(huevox, openTitle);
    ExpectStill(huevox, ColorOf(1, 3, 3));
    EXPECT_EQ(huevox.title(), "Huevox - mine.txt");
    PressOpen();
    AnswerQuestion(huevox, IDNO);
    ChoosePath(huevox, openTitle, PathOf("theirs.txt"));
    EXPECT_BECOMES(huevox.title(), "Huevox - theirs.txt");
    EXPECT_TRUE(IsUntouched());
}

TEST_F(ChangedFile, OpenCancelShowsNoDialog) {
    const Huevox huevox;
    OpenAndChange(huevox);
    PressOpen();
    AnswerQuestion(huevox, IDCANCEL);
    ExpectStill(huevox, ColorOf(1, 3, 3));
}

TEST_F(ChangedFile, CloseYesSavesAndCloses) {
    const Huevox huevox;
    OpenAndChange(huevox);
    PressClose(huevox);
    AnswerQuestion(huevox, IDYES);
    EXPECT_EQ(huevox.waitForEnd(), 0);
    EXPECT_TRUE(IsSaved());
}

TEST_F(ChangedFile, CloseNoCloses) {
    const Huevox huevox;
    OpenAndChange(huevox);
    Press('F', {VK_MENU});
    Press('E');
    AnswerQuestion(huevox, IDNO);
    EXPECT_EQ(huevox.waitForEnd(), 0);
    EXPECT_TRUE(IsUntouched());
}

TEST_F(ChangedFile, CloseCancelKeepsTheWindowAndAsksAgainNextTime) {
    const Huevox huevox;
    OpenAndChange(huevox);
    for (int attempt = 0; attempt < 2; ++attempt) {
        PressClose(huevox);
        AnswerQuestion(huevox, IDCANCEL);
        ExpectStill(huevox, ColorOf(1, 3 + attempt, 3));
    }
    PressClose(huevox);
    AnswerQuestion(huevox, IDNO);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(ChangedFile, WithPromptToSave0ClosingAsksNothingButNewAndOpenStillAsk) {
    StoreText("PromptToSave", "0");
    const Huevox huevox;
    OpenAndChange(huevox);
    PressNew();
    AnswerQuestion(huevox, IDCANCEL);
    PressOpen();
    AnswerQuestion(huevox, IDCANCEL);
    PressClose(huevox);
    EXPECT_EQ(huevox.waitForEnd(), 0);
    EXPECT_TRUE(IsUntouched());
}

TEST_F(ChangedFile, TheEndOfTheSessionAsksAndCancelVetoesIt) {
    const Huevox huevox;
    OpenAndChange(huevox);
    auto mayEnd = AskForSessionEnd(huevox);
    AnswerQuestion(huevox, IDCANCEL);
    EXPECT_FALSE(mayEnd.get());
    ::SendMessageA(huevox.window(), WM_ENDSESSION, FALSE, 0);
    ExpectStill(huevox, ColorOf(1, 3, 3));
}

TEST_F(ChangedFile, TheEndOfTheSessionSavesWhenAskedToAndClosesOnlyThen) {
    const Huevox huevox;
    OpenAndChange(huevox);
    auto mayEnd = AskForSessionEnd(huevox);
    AnswerQuestion(huevox, IDYES);
    EXPECT_TRUE(mayEnd.get());
    EXPECT_TRUE(IsSaved());
    EXPECT_TRUE(huevox.isRunning());
    ::SendMessageA(huevox.window(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(ChangedFile, OneQuestionAnAttempt) {
    const Huevox huevox;
    OpenAndChange(huevox);
    PressClose(huevox);
    ASSERT_TRUE(huevox.waitForDialog());
    PressClose(huevox);
    ::PostMessageA(huevox.window(), WM_CLOSE, 0, 0);
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuFileNew, 0);
    EXPECT_FALSE(::SendMessageA(huevox.window(), WM_QUERYENDSESSION, 0, 0));
    EXPECT_EQ(huevox.dialogCount(), 1);
    AnswerQuestion(huevox, IDCANCEL);
    ExpectStill(huevox, ColorOf(1, 3, 3));
}

TEST_F(ChangedFile, WhenSavingFailsOpenAndClosingGoOn) {
    const Huevox huevox;
    OpenAndChange(huevox);
    const ReadOnlyFile refusing(PathOf("mine.txt"));
    PressOpen();
    AnswerQuestion(huevox, IDYES);
    CloseMessage(huevox, couldNotSave);
    CancelFileDialog(huevox, openTitle);
    PressClose(huevox);
    AnswerQuestion(huevox, IDYES);
    CloseMessage(huevox, couldNotSave);
    EXPECT_EQ(huevox.waitForEnd(), 0);
    EXPECT_TRUE(IsUntouched());
}
