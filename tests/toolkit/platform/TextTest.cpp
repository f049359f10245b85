#include "toolkit/platform/Text.h"

#include <gtest/gtest.h>

#include <string>

#include "toolkit/platform/Platform.h"

namespace {

/// These tests run where the code page is that of Western Europe.
class Text : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(::GetACP(), 1252U); }
};

}  // namespace

TEST_F(Text, EveryByteOfAFileComesBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    EXPECT_EQ(Ansi(FromAnsi(bytes)), bytes);
    EXPECT_EQ(Ansi("café €"), "caf\xE9 \x80");
    EXPECT_EQ(FromAnsi("caf\xE9 \x80"), "café €");
}

TEST_F(Text, ACharacterOutsideTheCodePageIsAQuestionMarkAndNeverASimilarOne) {
    EXPECT_EQ(Ansi("aЖ表b"), "a??b");
    EXPECT_EQ(Ansi("ĀΓ∞ﬁ"), "????");
    EXPECT_EQ(Ansi("\U0001F3A8!"), "?!");
}

TEST_F(Text, CharactersOutsideAreFoundInTheirPlaces) {
    const std::vector<CharacterPlace> outside = OutsideAnsi(L"éЖ\U0001F3A8?表");
    ASSERT_EQ(outside.size(), 3U);
    EXPECT_EQ(outside[0].start, 1U);
    EXPECT_EQ(outside[0].length, 1U);
    EXPECT_EQ(outside[1].start, 2U);
    EXPECT_EQ(outside[1].length, 2U);
    EXPECT_EQ(outside[2].start, 5U);
    EXPECT_EQ(WithinAnsi(L"éЖ\U0001F3A8?表"), L"é????");
    EXPECT_TRUE(OutsideAnsi(L"café €?").empty());
    EXPECT_EQ(WithinAnsi(L""), L"");
}

TEST_F(Text, HalfACharacterIsOutside) {
    EXPECT_EQ(WithinAnsi(L"a\xD83C"), L"a?");
    EXPECT_EQ(WithinAnsi(L"\xDFA8\xD83Cz"), L"??z");
    EXPECT_EQ(Utf8(L"a\xD83C"), "a\uFFFD");
}

TEST_F(Text, OfTheProgramAndOfWindowsIsTheSame) {
    for (const char* text : {"", "plain", "café €", "Палитра", "色見本", "\U0001F3A8"})
        EXPECT_EQ(Utf8(Wide(text)), text);
    EXPECT_EQ(Wide("\U0001F3A8"), L"\xD83C\xDFA8");
    EXPECT_EQ(Wide("a\xFFz"), L"a\uFFFDz");
}
