// Which changes of the marks are one step?
#include <gtest/gtest.h>

#include "tests/mainwindow/panels/Hand.h"

TEST(HistoryGestures, ChangesOfOneColorAreOneStepUntilTheHandRests) {
    Hand hand;
    for (const int red : {1, 2, 3}) hand.color(red);
    hand.rest();
    hand.color(4);
    hand.undo();
    EXPECT_EQ(hand.now.shown.colors[0].red, 3);
    hand.undo();
    EXPECT_EQ(hand.now.shown.colors[0].red, 0);
    EXPECT_FALSE(hand.history.canUndo());
}

TEST(HistoryGestures, AnotherMarksColorIsAnotherStep) {
    Hand hand;
    hand.color(1);
    hand.select(1);
    hand.color(2);
    hand.undo();
    EXPECT_EQ(hand.now.shown.colors[0].red, 1);
    EXPECT_EQ(hand.now.shown.colors[1].red, 0);
}

TEST(HistoryGestures, SelectingIsNoStepButEndsOne) {
    Hand hand;
    hand.color(1);
    hand.select(3);
    hand.select(0);
    hand.color(2);
    EXPECT_EQ(hand.undoAll(), 2);
}

TEST(HistoryGestures, TypingInOneBoxIsOneStepWhateverTimeItTakes) {
    Hand hand;
    hand.type(3, "n");
    hand.type(3, "na");
    EXPECT_EQ(hand.history.runningGesture(), Gesture::name);
    hand.type(2, "r");
    hand.undo();
    EXPECT_EQ(hand.now.shown.names[3], "na");
    EXPECT_EQ(hand.now.shown.names[2], "");
    hand.undo();
    EXPECT_EQ(hand.now.shown.names[3], "");
}

TEST(HistoryGestures, ACommandIsOneStepForAllItsNames) {
    Hand hand;
    for (int mark = 0; mark < markCount; ++mark) hand.command(mark, "x");
    EXPECT_EQ(hand.undoAll(), 1);
}

TEST(HistoryGestures, ACommandEndsWithTheNextNote) {
    Hand hand;
    hand.command(0, "x");
    hand.highlight(0, false);
    hand.command(0, "y");
    EXPECT_EQ(hand.undoAll(), 2);
}

TEST(HistoryGestures, TypingOnAfterACommandIsAnotherStep) {
    Hand hand;
    hand.type(0, "x");
    hand.command(0, "navy");
    hand.type(0, "navyx");
    hand.undo();
    EXPECT_EQ(hand.now.shown.names[0], "navy");
    hand.undo();
    EXPECT_EQ(hand.now.shown.names[0], "x");
}

TEST(HistoryGestures, WhatAColorDoesToNamesBelongsToItsStep) {
    Hand hand;
    hand.command(4, "Not JavaScript colour");
    hand.color(1);
    hand.now.shown.names[4] = "Type a colour name";
    hand.history.note(hand.now, Gesture::color);
    hand.undo();
    EXPECT_EQ(hand.now.shown.names[4], "Not JavaScript colour");
    EXPECT_EQ(hand.now.shown.colors[0].red, 0);
}

TEST(HistoryGestures, AStepThatWasTakenBackIsNotGoneOnWith) {
    Hand hand;
    hand.color(1);
    hand.undo();
    hand.redo();
    hand.color(2);
    hand.undo();
    EXPECT_EQ(hand.now.shown.colors[0].red, 1);
}

TEST(HistoryGestures, AColorThatComesBackToWhereItBeganIsNoStep) {
    Hand hand;
    hand.color(1);
    hand.rest();
    hand.color(2);
    hand.color(1);
    EXPECT_FALSE(hand.history.canRedo());
    hand.color(3);
    hand.undo();
    EXPECT_EQ(hand.now.shown.colors[0].red, 1);
    EXPECT_EQ(hand.undoAll(), 1);
}

TEST(HistoryGestures, ANameThatComesBackToWhereItBeganCanBeDoneAgain) {
    Hand hand;
    hand.type(0, "navy");
    hand.type(0, "");
    EXPECT_FALSE(hand.history.canUndo());
    EXPECT_EQ(hand.history.runningGesture(), Gesture::none);
    ASSERT_TRUE(hand.history.canRedo());
    hand.redo();
    EXPECT_EQ(hand.now.shown.names[0], "navy");
}

TEST(HistoryGestures, KeepsTheHighlightOfAGestureThatCameBack) {
    Hand hand;
    hand.color(1);
    hand.highlight(0, true);
    hand.color(0);
    hand.rest();
    hand.color(2);
    hand.undo();
    EXPECT_TRUE(hand.now.isHighlighted[0]);
}
