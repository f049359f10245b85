#include "core/ChannelText.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>

TEST(HexPairs, TenIs0AAnd255IsFF) {
    EXPECT_EQ(HexPairs[10], "0A");
    EXPECT_EQ(HexPairs[255], "FF");
}

TEST(HexPairs, EveryEntryIsItsIndexInTwoUpperCaseDigits) {
    ASSERT_EQ(HexPairs.size(), 256U);
    for (unsigned i = 0; i < HexPairs.size(); ++i) {
        std::array<char, 3> expected{};
        std::snprintf(expected.data(), expected.size(), "%02X", i);
        EXPECT_EQ(HexPairs[i], expected.data());
    }
}

TEST(StripLeadingZeros, RemovesZerosWhileMoreThanOneCharacterRemains) {
    EXPECT_EQ(StripLeadingZeros("007"), "7");
    EXPECT_EQ(StripLeadingZeros("000"), "0");
    EXPECT_EQ(StripLeadingZeros("0"), "0");
    EXPECT_EQ(StripLeadingZeros(""), "");
    EXPECT_EQ(StripLeadingZeros("100"), "100");
}

TEST(StripLeadingZeros, TrimsNothingElse) {
    EXPECT_EQ(StripLeadingZeros(" 07 "), " 07 ");
    EXPECT_EQ(StripLeadingZeros("0x"), "x");
}

TEST(ParseChannelDecimal, BlanksOnEachSideAreTrimmed) { EXPECT_EQ(ParseChannelDecimal(" 12 "), 12); }

TEST(ParseChannelDecimal, LeadingZerosAreStripped) {
    EXPECT_EQ(ParseChannelDecimal("0255"), 255);
    EXPECT_EQ(ParseChannelDecimal("000"), 0);
    EXPECT_EQ(ParseChannelDecimal(" 007 "), 7);
    EXPECT_EQ(ParseChannelDecimal(std::string(10'000, '0') + "7"), 7);
}

TEST(ParseChannelDecimal, TheLimitsAre0And255) {
    EXPECT_EQ(ParseChannelDecimal("0"), 0);
    EXPECT_EQ(ParseChannelDecimal("255"), 255);
    EXPECT_EQ(ParseChannelDecimal("256"), -1);
}

TEST(ParseChannelDecimal, SignsInnerBlanksAndLettersAreRefused) {
    for (const char* text : {"-5", "+5", "1 2", "1e2", "12a", "-1", "1.5", "0x10", "\t5", "5\n"}) {
        EXPECT_EQ(ParseChannelDecimal(text), -1) << text;
    }
}

TEST(ParseChannelDecimal, EmptyAndAllBlankAreRefused) {
    EXPECT_EQ(ParseChannelDecimal(""), -1);
    EXPECT_EQ(ParseChannelDecimal("   "), -1);
}

TEST(ParseChannelDecimal, ANumberThatDoesNotFit16BitsIsRefused) {
    EXPECT_EQ(ParseChannelDecimal("32767"), -1);
    EXPECT_EQ(ParseChannelDecimal("32768"), -1);
    EXPECT_EQ(ParseChannelDecimal("65537"), -1);  // 1, were it cut to 16 bits
    EXPECT_EQ(ParseChannelDecimal("99999999"), -1);
    EXPECT_EQ(ParseChannelDecimal(std::string(100'000, '9')), -1);
}

TEST(ParseChannelDecimal, BytesOutsideAsciiAreRefused) {
    EXPECT_EQ(ParseChannelDecimal("\xB2"), -1);
    EXPECT_EQ(ParseChannelDecimal(std::string_view("1\0", 2)), -1);
}

TEST(ValidateHexPair, UpperCasesAndTrims) {
    EXPECT_EQ(ValidateHexPair("cc"), "CC");
    EXPECT_EQ(ValidateHexPair(" 0a "), "0A");
    EXPECT_EQ(ValidateHexPair("00"), "00");
    EXPECT_EQ(ValidateHexPair("fF"), "FF");
}

TEST(ValidateHexPair, AnyOtherLengthIsRefused) {
    for (const char* text : {"", "  ", "F", "FFF", "0x0", " F "})
        EXPECT_EQ(ValidateHexPair(text), "-1") << text;
}

TEST(ValidateHexPair, AnyOtherCharacterIsRefused) {
    for (const char* text : {"G0", "0G", "-1", "+1", "0 ", " 0", "@A", "A`", "/0", "0:"}) {
        EXPECT_EQ(ValidateHexPair(text), "-1") << text;
    }
}

TEST(ParseChannelHex, ReadsEveryPairInEitherCase) {
    for (int value = 0; value < 256; ++value) {
        std::array<char, 3> pair{};
        std::snprintf(pair.data(), pair.size(), "%02x", static_cast<unsigned>(value));
        EXPECT_EQ(ParseChannelHex(pair.data()), value);
    }
}

TEST(ParseChannelHex, ASingleDigitIsRefusedWhereDecimalTakesOne) {
    EXPECT_EQ(ParseChannelHex("F"), -1);
    EXPECT_EQ(ParseChannelHex("7"), -1);
    EXPECT_EQ(ParseChannelDecimal("7"), 7);
}

TEST(LowerCased, ChangesTheLettersAToZOnly) { EXPECT_EQ(LowerCased("0AZ[@\xC4"), "0az[@\xC4"); }
