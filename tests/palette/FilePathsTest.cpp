#include "palette/FilePaths.h"

#include <gtest/gtest.h>

TEST(WithoutLimit, PutsAMarkBeforeADrive) {
    EXPECT_EQ(WithoutLimit(L"C:\\pal\\Reds.txt"), L"\\\\?\\C:\\pal\\Reds.txt");
}

TEST(WithoutLimit, HasAMarkOfItsOwnForShares) {
    EXPECT_EQ(WithoutLimit(L"\\\\server\\pal\\Reds.txt"), L"\\\\?\\UNC\\server\\pal\\Reds.txt");
}

TEST(WithoutLimit, LeavesWhatHasAMark) {
    EXPECT_EQ(WithoutLimit(L"\\\\?\\C:\\Reds.txt"), L"\\\\?\\C:\\Reds.txt");
    EXPECT_EQ(WithoutLimit(L"\\\\.\\NUL"), L"\\\\.\\NUL");
}

TEST(FolderOf, EndsWithTheLastBackslash) {
    EXPECT_EQ(FolderOf(L"\\\\?\\C:\\pal\\Reds.txt"), L"\\\\?\\C:\\pal\\");
    EXPECT_EQ(FolderOf(L"\\\\?\\C:\\"), L"\\\\?\\C:\\");
}

TEST(TemporaryName, IsAnotherForEachProgramAndEachAttempt) {
    EXPECT_EQ(TemporaryName(4711, 0), L"hvx4711-0.tmp");
    EXPECT_EQ(TemporaryName(4711, 31), L"hvx4711-31.tmp");
    EXPECT_NE(TemporaryName(1, 12), TemporaryName(11, 2));
}
