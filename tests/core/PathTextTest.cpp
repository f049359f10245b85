#include "core/PathText.h"

#include <gtest/gtest.h>

#include "tests/core/LeadBytes.h"

TEST(GetFileNamePart, IsWhatFollowsTheLastDelimiter) {
    EXPECT_EQ(GetFileNamePart("D:\\pal\\Reds.txt", "\\", NoLeadByte), "Reds.txt");
    EXPECT_EQ(GetFileNamePart("D:\\pal\\", "\\", NoLeadByte), "");
    EXPECT_EQ(GetFileNamePart("a--b--c", "--", NoLeadByte), "c");
}

TEST(GetFileNamePart, IsEmptyForAnEmptyText) { EXPECT_EQ(GetFileNamePart("", "\\", NoLeadByte), ""); }

TEST(GetFileNamePart, IsTheWholeTextWithoutADelimiter) {
    EXPECT_EQ(GetFileNamePart("Reds.txt", "\\", NoLeadByte), "Reds.txt");
    EXPECT_EQ(GetFileNamePart("a\\b", "", NoLeadByte), "a\\b");
}

TEST(GetFileNamePart, TheSecondByteOfACharacterIsNoBackslash) {
    EXPECT_EQ(GetFileNamePart("D:\\a\x83\\b", "\\", IsLeadByte83), "a\x83\\b");
    EXPECT_EQ(GetFileNamePart("D:\\a\x83\\b", "\\", NoLeadByte), "b");
}

TEST(FolderPart, EndsWithTheLastBackslash) {
    EXPECT_EQ(FolderPart("D:\\pal\\Reds.txt", NoLeadByte), "D:\\pal\\");
    EXPECT_EQ(FolderPart("D:\\", NoLeadByte), "D:\\");
    EXPECT_EQ(FolderPart("Reds.txt", NoLeadByte), "");
    EXPECT_EQ(FolderPart("D:\\a\x83\\b", IsLeadByte83), "D:\\");
}

TEST(WithExtension, AddsOneWhereThereIsNoDotAfterTheLastBackslash) {
    EXPECT_EQ(WithExtension("D:\\pal\\Reds", NoLeadByte), "D:\\pal\\Reds.txt");
    EXPECT_EQ(WithExtension("D:\\pal.old\\Reds", NoLeadByte), "D:\\pal.old\\Reds.txt");
    EXPECT_EQ(WithExtension("D:\\a.b\x83\\c", IsLeadByte83), "D:\\a.b\x83\\c");
    EXPECT_EQ(WithExtension("D:\\a.b\x83\\c", NoLeadByte), "D:\\a.b\x83\\c.txt");
}

TEST(WithExtension, KeepsAnyOther) {
    EXPECT_EQ(WithExtension("D:\\pal\\Reds.txt", NoLeadByte), "D:\\pal\\Reds.txt");
    EXPECT_EQ(WithExtension("D:\\pal\\Reds.", NoLeadByte), "D:\\pal\\Reds.");
    EXPECT_EQ(WithExtension("Reds.pal", NoLeadByte), "Reds.pal");
}

TEST(FirstCharacters, NeverEndsInTheMiddleOfACharacter) {
    EXPECT_EQ(FirstCharacters("a\x83\\b", 2, IsLeadByte83), "a\x83\\");
    EXPECT_EQ(FirstCharacters("a\x83\\b", 2, NoLeadByte), "a\x83");
    EXPECT_EQ(FirstCharacters("ab", 3, NoLeadByte), "ab");
    EXPECT_EQ(FirstCharacters("ab\x83", 3, IsLeadByte83), "ab\x83");
    EXPECT_EQ(FirstCharacters("ab", 0, NoLeadByte), "");
}

TEST(LastCharacter, MayTakeTwoBytes) {
    EXPECT_EQ(LastCharacter("ab", NoLeadByte), "b");
    EXPECT_EQ(LastCharacter("a\x83\\", IsLeadByte83), "\x83\\");
    EXPECT_EQ(LastCharacter("", NoLeadByte), "");
}
