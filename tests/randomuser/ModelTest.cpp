#include "randomuser/Model.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "randomuser/Chooser.h"
#include "resources/resource.h"
#include "tests/core/NamedColors.h"

namespace {

constexpr int yes = 6;
constexpr int no = 7;

/// A model of a program that has just started.
class SoakModel : public testing::Test {
protected:
    SoakModel() { play({Kind::start}); }

    void play(const Action& action) {
        ASSERT_TRUE(model.isPossible(action)) << LineOf(action);
        model.play(action);
    }
    void moveRed() { play({Kind::sliderArrow, 0, -1}); }
    void chooseFile(const std::string& name) {
        play({Kind::choosePath, 0, 0, std::string(filesFolder) + '\\' + name});
    }
    void open(const std::string& name) {
        play({Kind::openPalette});
        if (model.look().box.title == "Huevox") play({Kind::answer, 0, no});
        chooseFile(name);
    }

    const Facts facts = Facts(ReadJavaScriptColors());
    Model model = Model(facts);
};

}  // namespace

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

TEST_F(SoakModel, IsNeverAtALossForTheNextAction) {
    Chooser chooser(7);
    Chooser same(7);
    for (int step = 0; step < 20'000; ++step) {
        const Action action = chooser.next(model);
        ASSERT_EQ(same.next(model), action);
        model.play(action);
    }
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

TEST(SoakChooser, ComesToRarePathsOften) {
    const Facts facts(ReadJavaScriptColors());
    for (unsigned seed = 1; seed <= 5; ++seed) {
        Chooser chooser(seed);
        Model model(facts);
        int givenUp = 0;
        int searches = 0;
        bool isNew = false;
        for (int step = 0; step < 20'000; ++step) {
            const Action action = chooser.next(model);
            if (action.kind == Kind::newPalette) isNew = model.isChanged();
            if (!model.look().box.isOpen() && action.kind != Kind::newPalette) isNew = false;
            const bool isSaveAs = model.look().box.title == "Save Palette As";
            if (isNew && isSaveAs && action.kind == Kind::cancelDialog) ++givenUp;
            const SixMarks marks = model.look().marks;
            model.play(action);
            const bool hasAliceblue = std::ranges::count(marks.colors, ColorOf(0xF0, 0xF8, 0xFF)) > 0;
            if (action.kind == Kind::findNames && hasAliceblue) ++searches;
        }
        EXPECT_GE(givenUp, 3) << seed;
        EXPECT_GE(searches, 3) << seed;
    }
}
