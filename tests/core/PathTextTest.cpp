#include "core/PathText.h"

#include <gtest/gtest.h>

TEST(GetFileNamePart, IsWhatFollowsTheLastDelimiter) {
    EXPECT_EQ(GetFileNamePart("D:\\pal\\Reds.txt", "\\"), "Reds.txt");
    EXPECT_EQ(GetFileNamePart("D:\\pal\\", "\\"), "");
    EXPECT_EQ(GetFileNamePart("a--b--c", "--"), "c");
}

TEST(GetFileNamePart, IsEmptyForAnEmptyText) { EXPECT_EQ(GetFileNamePart("", "\\"), ""); }

TEST(GetFileNamePart, IsTheWholeTextWithoutADelimiter) {
    EXPECT_EQ(GetFileNamePart("Reds.txt", "\\"), "Reds.txt");
    EXPECT_EQ(GetFileNamePart("a\\b", ""), "a\\b");
}

TEST(GetFileNamePart, MayBeInAnyScript) {
    EXPECT_EQ(GetFileNamePart("D:\\Палитра\\赤ソ表.txt", "\\"), "赤ソ表.txt");
}

TEST(FolderPart, EndsWithTheLastBackslash) {
    EXPECT_EQ(FolderPart("D:\\pal\\Reds.txt"), "D:\\pal\\");
    EXPECT_EQ(FolderPart("D:\\"), "D:\\");
    EXPECT_EQ(FolderPart("Reds.txt"), "");
    EXPECT_EQ(FolderPart("D:\\ソ表\\赤.txt"), "D:\\ソ表\\");
}

TEST(WithExtension, AddsOneWhereThereIsNoDotAfterTheLastBackslash) {
    EXPECT_EQ(WithExtension("D:\\pal\\Reds"), "D:\\pal\\Reds.txt");
    EXPECT_EQ(WithExtension("D:\\pal.old\\Reds"), "D:\\pal.old\\Reds.txt");
    EXPECT_EQ(WithExtension("D:\\pal.old\\Красные"), "D:\\pal.old\\Красные.txt");
}

TEST(WithExtension, KeepsAnyOther) {
    EXPECT_EQ(WithExtension("D:\\pal\\Reds.txt"), "D:\\pal\\Reds.txt");
    EXPECT_EQ(WithExtension("D:\\pal\\Reds."), "D:\\pal\\Reds.");
    EXPECT_EQ(WithExtension("Reds.pal"), "Reds.pal");
    EXPECT_EQ(WithExtension("D:\\pal\\赤.表"), "D:\\pal\\赤.表");
}
