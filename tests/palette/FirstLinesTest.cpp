#include "palette/FirstLines.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string_view>;

/// Lines that come in blocks of that size.
struct Taken {
    Taken(std::string_view text, std::size_t blockSize, std::size_t mostKept, std::size_t mostCounted)
        : lines(mostKept, mostCounted) {
        while (!text.empty() && lines.take(text.substr(0, blockSize)))
            text.remove_prefix(std::min(blockSize, text.size()));
        left = text.size();
    }

    FirstLines lines;
    std::size_t left;
};

void ExpectLines(std::string_view text, const Lines& expected) {
    for (std::size_t blockSize = 1; blockSize <= text.size() + 1; ++blockSize) {
        const Taken taken(text, blockSize, 100, 100);
        EXPECT_EQ(taken.lines.kept(), expected) << blockSize;
        EXPECT_EQ(taken.lines.count(), expected.size()) << blockSize;
    }
}

}  // namespace

TEST(FirstLines, OnlyCrLfEndsALine) {
    ExpectLines("a\rb\nc\n\rd\r\n", {"a\rb\nc\n\rd"});
    ExpectLines("a\r\r\nb", {"a\r", "b"});
    ExpectLines("\n\r", {"\n\r"});
}

TEST(FirstLines, ALastLineWithoutOneCountsAndAFinalOneAddsNone) {
    ExpectLines("a\r\nb", {"a", "b"});
    ExpectLines("a\r\nb\r\n", {"a", "b"});
    ExpectLines("a\r\n\r\n", {"a", ""});
    ExpectLines("\r\n", {""});
    ExpectLines("", {});
}

TEST(FirstLines, KeepsTheFirstAndCountsTheRest) {
    const Taken taken("a\r\nb\r\nc\r\nd", 3, 2, 10);
    EXPECT_EQ(taken.lines.kept(), (Lines{"a", "b"}));
    EXPECT_EQ(taken.lines.count(), 4U);
}

TEST(FirstLines, WantsNoMoreThanMakesADifference) {
    const std::string text = "a\r\nb\r\nc\r\nd\r\ne";
    const Taken taken(text, 3, 1, 3);
    EXPECT_EQ(taken.lines.count(), 3U);
    EXPECT_EQ(taken.left, text.size() - 6);
}

TEST(FirstLines, KeepsNoMoreThan64MegabytesOfOneLine) {
    constexpr std::size_t megabyte = 1'048'576;
    const std::string block(megabyte, 'x');
    FirstLines lines(2, 2);
    for (int taken = 1; taken < 64; ++taken) ASSERT_TRUE(lines.take(block)) << taken;
    EXPECT_FALSE(lines.take(block));
}
