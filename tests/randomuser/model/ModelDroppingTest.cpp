#include "randomuser/model/Model.h"
#include "tests/randomuser/model/SoakModel.h"

namespace {

constexpr const char* question = "The palette has been changed. Do you want to save it?";
constexpr const char* newTitle = "Huevox - New palette";

class SoakModelDrops : public SoakModel {
protected:
    void drop(const std::string& name) {
        play({Kind::dropFile, 0, 0, std::string(filesFolder) + '\\' + name});
    }
    void answer(int button) { play({Kind::answer, 0, button}); }
    std::string message() const { return model.look().box.text; }
    std::string title() const { return model.look().title; }
    void expectUnchangedMarks(const SixMarks& before) const { EXPECT_EQ(model.look().marks, before); }
};

}  // namespace

TEST_F(SoakModelDrops, OpenAPaletteWithoutADialog) {
    drop("other\\some.txt");
    EXPECT_EQ(title(), "Huevox - some.txt");
    EXPECT_EQ(model.look().marks.names[3], "grey");
    EXPECT_FALSE(model.look().box.isOpen());
    EXPECT_FALSE(model.isChanged());
}

TEST_F(SoakModelDrops, BringTheMainWindowToTheFront) {
    play({Kind::settle});
    play({Kind::otherInFront});
    drop("nowhere.txt");
    EXPECT_EQ(model.look().front, Front::main);
    answer(1);
    EXPECT_TRUE(model.isPossible({Kind::settle}));
}

TEST_F(SoakModelDrops, AskBeforeAChangedPaletteGoes) {
    moveRed();
    const SixMarks before = model.look().marks;
    drop("some.txt");
    ASSERT_EQ(message(), question);
    answer(2);
    expectUnchangedMarks(before);
    EXPECT_EQ(title(), newTitle);
    drop("some.txt");
    answer(no);
    EXPECT_EQ(title(), "Huevox - some.txt");
}

TEST_F(SoakModelDrops, SaveFirstAndReadTheFileAfterwards) {
    moveRed();
    drop("one.txt");
    answer(yes);
    chooseFile("one.txt");
    EXPECT_EQ(title(), "Huevox - one.txt");
    EXPECT_EQ(model.current(), ColorOf(254, 0, 0));
    EXPECT_FALSE(model.look().box.isOpen());
}

TEST_F(SoakModelDrops, LeaveAPaletteThatWasNotSavedAfterAll) {
    moveRed();
    const SixMarks before = model.look().marks;
    drop("some.txt");
    answer(yes);
    play({Kind::cancelDialog});
    expectUnchangedMarks(before);
    drop("some.txt");
    answer(yes);
    chooseFile("locked.txt");
    answer(yes);
    ASSERT_TRUE(message().starts_with("Could not save."));
    answer(1);
    expectUnchangedMarks(before);
    EXPECT_EQ(title(), newTitle);
    EXPECT_FALSE(model.look().box.isOpen());
}

TEST_F(SoakModelDrops, DoNotReachALaterCommand) {
    moveRed();
    drop("some.txt");
    answer(yes);
    play({Kind::cancelDialog});
    play({Kind::savePaletteAs});
    chooseFile("one.txt");
    EXPECT_EQ(title(), "Huevox - one.txt");
}

TEST_F(SoakModelDrops, TellWhatCannotBeReadAndLeaveEverythingAsItWas) {
    const Look before = model.look();
    for (const char* name : {"nowhere.txt", "other", "two.txt"}) {
        drop(name);
        EXPECT_EQ(message(), "Could not open. Check if file is in use or has been removed.");
        answer(1);
        EXPECT_EQ(model.look(), before);
    }
}

TEST_F(SoakModelDrops, RefuseALetterAndALongFileAsOpenDoes) {
    drop("long.txt");
    EXPECT_TRUE(message().starts_with("You tried to open the file"));
    answer(1);
    drop("some.txt");
    drop("nowhere.txt");
    answer(1);
    drop("long.txt");
    EXPECT_EQ(title(), "Huevox - long.txt");
    drop("letter.txt");
    answer(1);
    drop("long.txt");
    EXPECT_TRUE(message().starts_with("You tried to open the file"));
}

TEST_F(SoakModelDrops, OpenedDecideWhereSaveGoesAndOthersDoNot) {
    const std::string inSecond = std::string(secondFolder) + "\\some.txt";
    drop("other\\some.txt");
    for (const char* name : {"letter.txt", "nowhere.txt"}) {
        drop(name);
        answer(1);
    }
    play({Kind::selectMark, 4});
    moveRed();
    play({Kind::savePalette});
    EXPECT_EQ(model.files().at(inSecond).palette, model.look().marks);
}

TEST_F(SoakModelDrops, EndWhatCanBeTakenBack) {
    moveRed();
    ASSERT_TRUE(model.isPossible({Kind::undo, 1}));
    drop("some.txt");
    answer(no);
    EXPECT_FALSE(model.isPossible({Kind::undo, 1}));
}

TEST_F(SoakModelDrops, AreNotTakenInColourPickModeNorBehindABox) {
    play({Kind::openPicker, 0});
    play({Kind::pickMode});
    play({Kind::otherInFront});
    const Look before = model.look();
    drop("some.txt");
    EXPECT_EQ(model.look(), before);
    play({Kind::pickMode});
    play({Kind::openPalette});
    drop("some.txt");
    play({Kind::cancelDialog});
    EXPECT_EQ(title(), newTitle);
}

TEST_F(SoakModel, IsKeptOnTopUntilItIsSwitchedOffOrEnds) {
    EXPECT_FALSE(model.look().isOnTop);
    play({Kind::keepOnTop});
    EXPECT_TRUE(model.look().isOnTop);
    play({Kind::keepOnTop, 1});
    EXPECT_FALSE(model.look().isOnTop);
    play({Kind::keepOnTop});
    play({Kind::close});
    play({Kind::start});
    EXPECT_FALSE(model.look().isOnTop);
}

TEST_F(SoakModel, IsNotKeptOnTopBelowTheMessageThatEndsIt) {
    play({Kind::keepOnTop});
    open("letter.txt");
    EXPECT_TRUE(model.look().isOnTop);
    play({Kind::answer, 0, 1});
    open("nowhere.txt");
    EXPECT_FALSE(model.look().isOnTop);
}

TEST_F(SoakModel, IsSwitchedOnlyWhileItIsInFront) {
    play({Kind::otherInFront});
    EXPECT_FALSE(model.isPossible({Kind::keepOnTop}));
}
