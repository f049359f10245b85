#include "randomuser/model/Model.h"

#include "randomuser/model/Rows.h"
#include "resources/resource.h"
#include "tests/randomuser/model/SoakModel.h"

TEST_F(SoakModel, BeginsWithANewPalette) {
    const Look look = model.look();
    EXPECT_EQ(look.title, "Huevox - New palette");
    EXPECT_EQ(look.marks.names[5], noName);
    EXPECT_EQ(look.marks.colors[3], ColorOf(0, 255, 255));
    EXPECT_EQ(look.preview, "#FF0000");
    EXPECT_EQ(look.letters[0], std::set<std::string>{"WFJ"});
    EXPECT_FALSE(model.isChanged());
}

TEST_F(SoakModel, HighlightsANameThatMayNotFit) {
    play({Kind::typeName, 0, 0, "navy"});
    moveRed();
    EXPECT_TRUE(model.look().highlighted[0]);
    play({Kind::eraseName, 0});
    EXPECT_FALSE(model.look().highlighted[0]);
    EXPECT_EQ(model.look().marks.names[0], "nav");
}

TEST_F(SoakModel, TurnsTheTemporaryNameBackAtTheFirstChange) {
    moveRed();
    play({Kind::findNames});
    EXPECT_EQ(model.look().marks.names[0], notJavaScript);
    EXPECT_EQ(model.look().marks.names[1], "yellow");
    moveRed();
    EXPECT_EQ(model.look().marks.names[0], noName);
    EXPECT_FALSE(model.look().highlighted[0]);
}

TEST_F(SoakModel, LeavesTheTemporaryNameWhereABoxShowsItBeforeTheFileDoes) {
    open("some.txt");
    EXPECT_EQ(model.look().marks.names[5], noName);
    play({Kind::findNames});
    EXPECT_EQ(model.look().marks.names[5], notJavaScript);
    open("some.txt");
    EXPECT_EQ(model.look().marks.names[5], notJavaScript);
}

TEST_F(SoakModel, KeepsTheModeWhileTypedValuesWait) {
    play({Kind::typeValue, 1, 0, "0f"});
    EXPECT_EQ(model.look().values[1], "0F");
    EXPECT_TRUE(model.look().isSetEnabled);
    play({Kind::selectMark, 1});
    EXPECT_FALSE(model.look().isSetEnabled);
    EXPECT_FALSE(model.look().isModeEnabled);
    play({Kind::setMode, 0, 1});
    EXPECT_TRUE(model.look().isDecimal);
    play({Kind::enterValue, 1});
    EXPECT_TRUE(model.look().isModeEnabled);
}

TEST_F(SoakModel, RefusesABadValueAndLeavesItInItsBox) {
    play({Kind::typeValue, 2, 0, "300"});
    play({Kind::pressSet});
    EXPECT_EQ(model.look().box.text, "The value is not allowed. Only values from 0 to 255 are allowed.");
    EXPECT_FALSE(model.isPossible({Kind::pressSet}));
    play({Kind::answer, 0, 1});
    EXPECT_EQ(model.look().values[2], "300");
    EXPECT_FALSE(model.look().isSetEnabled);
}

TEST_F(SoakModel, APickByKeysIsLikeADragAndOneInVainChangesNothing) {
    EXPECT_FALSE(model.isPossible({Kind::pickByKeys, 4}));
    EXPECT_FALSE(model.isPossible({Kind::pickInVain, 4}));
    play({Kind::pickMode});
    play({Kind::pickByKeys, 4});
    EXPECT_EQ(model.look().marks.colors[0], ColorOf(0, 0, 255));
    play({Kind::selectMark, 1});
    play({Kind::pickInVain, 2});
    EXPECT_EQ(model.look().marks.colors[1], ColorOf(255, 255, 0));
    play({Kind::pickRight});
    EXPECT_EQ(model.look().marks.colors[1], ColorOf(0, 0, 255));
}

TEST_F(SoakModel, KnowsWhenTheClipboardIsAsItWasLeft) {
    EXPECT_FALSE(model.isPossible({Kind::otherCopies, 0, 0, "theirs"}));
    play({Kind::settle});
    play({Kind::otherCopies, 0, 0, "theirs"});
    EXPECT_EQ(model.clipboard().text, "theirs");
    play({Kind::otherInFront});
    play({Kind::comeBack});
    play({Kind::settle});
    EXPECT_EQ(model.clipboard().text, "#FF0000");
}

TEST_F(SoakModel, LettersMayBeOldUntilTheClipboardIsWritten) {
    moveRed();
    EXPECT_EQ(model.look().letters[0], (std::set<std::string>{"", "WFJ"}));
    play({Kind::settle});
    EXPECT_EQ(model.look().letters[0], (std::set<std::string>{""}));
}

TEST_F(SoakModel, PicksBlackUntilSomethingWasPicked) {
    play({Kind::pickRight});
    EXPECT_EQ(model.current(), ColorOf(255, 0, 0));
    play({Kind::pickMode});
    play({Kind::pickRight});
    EXPECT_EQ(model.current(), ColorOf(0, 0, 0));
    play({Kind::pickDrag, 4});
    EXPECT_EQ(model.current(), ColorOf(0, 0, 255));
    EXPECT_FALSE(model.isPossible({Kind::openPalette, 2}));
}

TEST_F(SoakModel, LeavesOutWhatIsNotPossible) {
    const Action start = {Kind::start};
    const Action mark = {Kind::selectMark, 3};
    EXPECT_EQ(Possible({start, {Kind::answer, 0, yes}, mark, start, {Kind::swatch, 0, 7}}, facts),
              (Actions{start, mark}));
}

TEST_F(SoakModel, NothingButAStartIsPossibleWhileNoProgramRuns) {
    play({Kind::otherHolds});
    play({Kind::close});
    ASSERT_FALSE(model.look().isRunning);
    for (const Row& row : AllRows())
        EXPECT_EQ(model.isPossible({row.kind}), row.kind == Kind::start) << row.name;
}

TEST_F(SoakModel, TakesTheSwatchToTheRight) {
    EXPECT_EQ(WebsafeColor(SwatchRightOf(0, 0)), ColorOf(51, 0, 0));
    EXPECT_EQ(WebsafeColor(SwatchRightOf(0, 5 * 36)), ColorOf(0, 51, 0));
    EXPECT_EQ(SwatchRightOf(1, 15), 15);
    EXPECT_EQ(SwatchRightOf(2, 6), 6);
    play({Kind::openPicker, 1});
    play({Kind::swatchKeys, 1, 4});
    EXPECT_EQ(model.current(), ColorOf(128, 128, 0));
}

TEST_F(SoakModel, TakesAStepOfTheBarFromEitherEnd) {
    play({Kind::barKeys, 1, 0});
    EXPECT_EQ(model.current(), ColorOf(255, 255, 255));
    play({Kind::barKeys, 0, 3});
    EXPECT_EQ(model.current(), ColorOf(3, 3, 3));
}

TEST_F(SoakModel, TabGoesPastWhatIsDisabled) {
    play({Kind::tabs, 0, 6});
    EXPECT_EQ(model.look().focus, IDC_optSetDec);
    play({Kind::typeValue, 0, 0, "7"});
    EXPECT_EQ(model.look().focus, 0);
    play({Kind::tabs, 0, 6});
    EXPECT_EQ(model.look().focus, IDC_cmdSetColor);
    play({Kind::tabs, 0, 7});
    EXPECT_EQ(model.look().focus, IDC_txtName);
}
