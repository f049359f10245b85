#include "core/Characters.h"

#include <gtest/gtest.h>

#include <string>

TEST(CharacterCount, IsThatOfTheUnitsThatABoxCounts) {
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("abc"), 3U);
    EXPECT_EQ(CharacterCount("é"), 1U);
    EXPECT_EQ(CharacterCount("Ж€表"), 3U);
    EXPECT_EQ(CharacterCount("\U0001F3A8"), 2U);
    EXPECT_EQ(CharacterCount("a\U0001F3A8b"), 4U);
    // The first and the last character that take two, and their neighbours that take one.
    EXPECT_EQ(CharacterCount("\uFFFD"), 1U);
    EXPECT_EQ(CharacterCount("\U00010000"), 2U);
    EXPECT_EQ(CharacterCount("\U0010FFFF"), 2U);
}

TEST(FirstCharacters, NeverEndInTheMiddleOfACharacter) {
    EXPECT_EQ(FirstCharacters("aЖ表b", 3), "aЖ表");
    EXPECT_EQ(FirstCharacters("aЖ表b", 2), "aЖ");
    EXPECT_EQ(FirstCharacters("a\U0001F3A8b", 3), "a\U0001F3A8");
    EXPECT_EQ(FirstCharacters("a\U0001F3A8b", 2), "a");
    EXPECT_EQ(FirstCharacters("\U0001F3A8", 1), "");
}

TEST(FirstCharacters, AreNoMoreThanThereAre) {
    EXPECT_EQ(FirstCharacters("ab", 3), "ab");
    EXPECT_EQ(FirstCharacters("aЖ", 3), "aЖ");
    EXPECT_EQ(FirstCharacters("ab", 0), "");
    EXPECT_EQ(FirstCharacters("", 1), "");
}

TEST(LastCharacter, MayTakeSeveralBytes) {
    EXPECT_EQ(LastCharacter("ab"), "b");
    EXPECT_EQ(LastCharacter("aЖ"), "Ж");
    EXPECT_EQ(LastCharacter("Ж表"), "表");
    EXPECT_EQ(LastCharacter("a\U0001F3A8"), "\U0001F3A8");
    EXPECT_EQ(LastCharacter(""), "");
}

TEST(Characters, OfBytesThatAreNoTextAreFourBytesAtMost) {
    const std::string followers(10, '\x83');
    EXPECT_EQ(CharacterCount(followers), 3U);
    EXPECT_EQ(FirstCharacters("a" + followers, 1).size(), 4U);
    EXPECT_EQ(FirstCharacters("\xF0", 1), "");
}
