#include "randomuser/model/Model.h"
#include "tests/randomuser/model/SoakModel.h"

namespace {

class SoakModelSteps : public SoakModel {
protected:
    bool canUndo() const { return model.isPossible({Kind::undo, 1}); }
    bool canRedo() const { return model.isPossible({Kind::redo, 1}); }
    void undo() { play({Kind::undo}); }
    void redo() { play({Kind::redo}); }
    Color color(int mark) const { return model.look().marks.colors.at(mark); }
    void takeStep(int step) { play({Kind::barClick, 0, step}); }
};

}  // namespace

TEST_F(SoakModelSteps, AreTakenBackInVainByKeyOnly) {
    EXPECT_FALSE(canUndo());
    EXPECT_TRUE(model.isPossible({Kind::undo, 0}));
    EXPECT_FALSE(canRedo());
    const Look before = model.look();
    undo();
    EXPECT_EQ(model.look(), before);
}

TEST_F(SoakModelSteps, BringColorNameHighlightAndSelectionBack) {
    play({Kind::typeName, 0, 0, "navy"});
    takeStep(128);
    const Look after = model.look();
    ASSERT_TRUE(after.highlighted[0]);
    play({Kind::selectMark, 4});
    undo();
    EXPECT_EQ(color(0), ColorOf(255, 0, 0));
    EXPECT_FALSE(model.look().highlighted[0]);
    EXPECT_EQ(model.look().selected, 0);
    EXPECT_EQ(model.look().preview, "#FF0000");
    EXPECT_EQ(model.look().letters[0], (std::set<std::string>{"", "WFJ"}));
    redo();
    EXPECT_EQ(model.look().marks, after.marks);
    EXPECT_TRUE(model.look().highlighted[0]);
    undo();
    undo();
    EXPECT_EQ(model.look().marks.names[0], noName);
}

TEST_F(SoakModelSteps, AreUnsureWhereTheHandMayNotHaveRested) {
    takeStep(100);
    takeStep(200);
    EXPECT_FALSE(canUndo());
    play({Kind::settle});
    takeStep(50);
    EXPECT_TRUE(canUndo());
    undo();
    EXPECT_FALSE(canUndo());
}

TEST_F(SoakModelSteps, AreSureOnceAnotherMarkIsSelected) {
    takeStep(100);
    play({Kind::selectMark, 1});
    play({Kind::selectMark, 0});
    takeStep(200);
    undo();
    EXPECT_TRUE(canUndo());
}

TEST_F(SoakModelSteps, OfManyKeysAreUnsure) {
    constexpr int threeTimes = 3 * 8;
    play({Kind::sliderKeys, 1, threeTimes + static_cast<int>(SliderKey::right)});
    EXPECT_FALSE(canUndo());
}

TEST_F(SoakModelSteps, EndWithAnotherPalette) {
    takeStep(100);
    play({Kind::newPalette});
    play({Kind::answer, 0, 7});
    EXPECT_FALSE(canUndo());
    EXPECT_FALSE(canRedo());
}

TEST_F(SoakModelSteps, OfNamesThatAreFoundIsOne) {
    play({Kind::findNames});
    ASSERT_EQ(model.look().marks.names[5], "magenta");
    undo();
    EXPECT_EQ(model.look().marks.names[5], noName);
    EXPECT_EQ(model.look().marks.names[0], noName);
}

TEST_F(SoakModelSteps, ThatWereTakenBackAreForgottenByTheNext) {
    takeStep(100);
    undo();
    play({Kind::selectMark, 2});
    EXPECT_TRUE(canRedo());
    takeStep(100);
    EXPECT_FALSE(canRedo());
}

TEST_F(SoakModelSteps, AreUnsureWhereANameMayHaveComeBack) {
    play({Kind::findNames});
    undo();
    play({Kind::typeName, 1, 0, noName});
    EXPECT_FALSE(canRedo());
}

TEST_F(SoakModelSteps, ThatPassByTheNameOnTheWayHaveTypedIt) {
    play({Kind::typeName, 0, 0, "cya"});
    takeStep(128);
    play({Kind::selectMark, 4});
    ASSERT_TRUE(model.look().highlighted[0]);
    play({Kind::typeName, 0, 0, "cyan"});
    undo();
    EXPECT_EQ(model.look().marks.names[0], "cya");
    EXPECT_FALSE(model.look().highlighted[0]);
}
