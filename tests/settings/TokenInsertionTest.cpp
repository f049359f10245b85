#include "settings/TokenInsertion.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// The new template with "|" for the caret; "-" when nothing may be inserted.
std::string Inserted(std::string_view text, std::size_t start, std::size_t length, std::string_view token) {
    const auto inserted = InsertedToken(text, start, length, token);
    if (!inserted) return "-";
    std::string shown = inserted->text;
    return shown.insert(inserted->caret, "|");
}

}  // namespace

TEST(InsertedToken, ThreeInTurnIntoAnEmptyTextFollowEachOther) {
    EXPECT_EQ(Inserted("", 0, 0, "%UR%"), "%UR%|");
    EXPECT_EQ(Inserted("%UR%", 4, 0, "%UG%"), "%UR%%UG%|");
    EXPECT_EQ(Inserted("%UR%%UG%", 8, 0, "%UB%"), "%UR%%UG%%UB%|");
}

TEST(InsertedToken, TakesThePlaceOfTheSelection) {
    EXPECT_EQ(Inserted("#%UR%", 0, 1, "%LD%"), "%LD%|%UR%");
    EXPECT_EQ(Inserted("RGB(x, y)", 4, 1, "%DR%"), "RGB(%DR%|, y)");
    EXPECT_EQ(Inserted("RGB(x, y)", 7, 2, "%DG%"), "RGB(x, %DG%|");
    EXPECT_EQ(Inserted("everything", 0, 10, "%LB%"), "%LB%|");
}

TEST(InsertedToken, StandsAtTheCaret) {
    EXPECT_EQ(Inserted("ab", 0, 0, "%DB%"), "%DB%|ab");
    EXPECT_EQ(Inserted("ab", 1, 0, "%DB%"), "a%DB%|b");
    EXPECT_EQ(Inserted("ab", 2, 0, "%DB%"), "ab%DB%|");
}

TEST(InsertedToken, MayMakeATemplateOf250Characters) {
    const std::string text(246, 'x');
    EXPECT_EQ(Inserted(text, 246, 0, "%UR%"), text + "%UR%|");
    EXPECT_EQ(Inserted(text, 0, 0, "%UR%"), "%UR%|" + text);
}

TEST(InsertedToken, NeverMakesATemplateOf251Characters) {
    EXPECT_EQ(Inserted(std::string(247, 'x'), 247, 0, "%UR%"), "-");
    EXPECT_EQ(Inserted(std::string(247, 'x'), 0, 0, "%UR%"), "-");
    EXPECT_EQ(Inserted(std::string(250, 'x'), 250, 0, "%UR%"), "-");
}

TEST(InsertedToken, IntoAFullTemplateNeedsFourSelectedCharacters) {
    const std::string text(250, 'x');
    EXPECT_EQ(Inserted(text, 10, 3, "%UR%"), "-");
    EXPECT_EQ(Inserted(text, 10, 4, "%UR%"), std::string(10, 'x') + "%UR%|" + std::string(236, 'x'));
    EXPECT_EQ(Inserted(std::string(247, 'x'), 0, 1, "%UR%"), "%UR%|" + std::string(246, 'x'));
}

TEST(InsertedToken, PlacesCountCharactersNotBytes) {
    const auto inserted = InsertedToken("表b色d", 2, 1, "%UR%");
    ASSERT_TRUE(inserted);
    EXPECT_EQ(inserted->text, "表b%UR%d");
    EXPECT_EQ(inserted->caret, 6U);
}

TEST(InsertedToken, PlacesCountAPairTwiceAndNeverPartIt) {
    const auto behind = InsertedToken("\U0001F3A8b", 2, 0, "%UR%");
    ASSERT_TRUE(behind);
    EXPECT_EQ(behind->text, "\U0001F3A8%UR%b");
    EXPECT_EQ(behind->caret, 6U);
    const auto inside = InsertedToken("\U0001F3A8b", 1, 0, "%UR%");
    ASSERT_TRUE(inside);
    EXPECT_EQ(inside->text, "%UR%\U0001F3A8b");
    EXPECT_EQ(inside->caret, 4U);
}

TEST(InsertedToken, TheLimitCountsCharactersNotBytes) {
    EXPECT_TRUE(InsertedToken("表" + std::string(245, 'x'), 1, 0, "%UR%"));
    EXPECT_FALSE(InsertedToken("表" + std::string(246, 'x'), 1, 0, "%UR%"));
}
