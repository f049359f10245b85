// What do the steps of a history bring back?
#include <gtest/gtest.h>

#include "tests/mainwindow/panels/Hand.h"

TEST(History, BeginsWithNothingToTakeBack) {
    const Hand hand;
    EXPECT_FALSE(hand.history.canUndo());
    EXPECT_FALSE(hand.history.canRedo());
}

TEST(History, TakesAStepBackAndDoesItAgain) {
    Hand hand;
    const MarkState before = hand.now;
    hand.color(9);
    const MarkState after = hand.now;
    ASSERT_TRUE(hand.history.canUndo());
    hand.undo();
    EXPECT_EQ(hand.now, before);
    EXPECT_FALSE(hand.history.canUndo());
    ASSERT_TRUE(hand.history.canRedo());
    hand.redo();
    EXPECT_EQ(hand.now, after);
    EXPECT_FALSE(hand.history.canRedo());
}

TEST(History, AStepComesBackWithTheMarkThatWasSelectedBeforeAndAfterIt) {
    Hand hand;
    hand.select(2);
    hand.color(1);
    hand.select(4);
    hand.type(5, "navy");
    hand.select(1);
    hand.undo();
    EXPECT_EQ(hand.now.selectedMark, 4);
    hand.undo();
    EXPECT_EQ(hand.now.selectedMark, 2);
    hand.redo();
    EXPECT_EQ(hand.now.selectedMark, 2);
    hand.redo();
    EXPECT_EQ(hand.now.selectedMark, 4);
}

TEST(History, HighlightsAreNoStepsButComeBack) {
    Hand hand;
    hand.highlight(0, true);
    EXPECT_FALSE(hand.history.canUndo());
    hand.type(0, "x");
    hand.undo();
    EXPECT_TRUE(hand.now.isHighlighted[0]);
    hand.redo();
    EXPECT_FALSE(hand.now.isHighlighted[0]);
}

TEST(History, AHighlightAfterAStepIsThereAgainWhenTheStepIs) {
    Hand hand;
    hand.color(1);
    hand.highlight(0, true);
    hand.undo();
    EXPECT_FALSE(hand.now.isHighlighted[0]);
    hand.redo();
    EXPECT_TRUE(hand.now.isHighlighted[0]);
}

TEST(History, ANewStepForgetsWhatWasTakenBack) {
    Hand hand;
    hand.color(1);
    hand.undo();
    hand.type(0, "x");
    EXPECT_FALSE(hand.history.canRedo());
    EXPECT_EQ(hand.undoAll(), 1);
}

TEST(History, SelectingAndHighlightingKeepWhatWasTakenBack) {
    Hand hand;
    hand.color(1);
    hand.undo();
    hand.select(5);
    hand.highlight(5, true);
    ASSERT_TRUE(hand.history.canRedo());
    hand.redo();
    EXPECT_EQ(hand.now.shown.colors[0].red, 1);
    EXPECT_EQ(hand.now.selectedMark, 0);
}

TEST(History, KeepsItsLatestStepsAndForgetsTheOldest) {
    Hand hand;
    constexpr int steps = static_cast<int>(History::mostSteps);
    static_assert(steps >= 100);
    for (int step = 1; step <= steps + 1; ++step) {
        hand.color(step % 256);
        hand.rest();
    }
    EXPECT_EQ(hand.undoAll(), steps);
    EXPECT_EQ(hand.now.shown.colors[0].red, 1);
}

TEST(History, BeginsAnewWithAnotherPalette) {
    Hand hand;
    hand.color(1);
    hand.color(2);
    hand.undo();
    hand.select(3);
    hand.history.begin(hand.now);
    EXPECT_FALSE(hand.history.canUndo());
    EXPECT_FALSE(hand.history.canRedo());
    hand.color(5);
    hand.undo();
    EXPECT_EQ(hand.now.selectedMark, 3);
}
