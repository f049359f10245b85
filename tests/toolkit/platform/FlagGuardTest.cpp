#include "toolkit/platform/FlagGuard.h"

#include <gtest/gtest.h>

#include <stdexcept>

TEST(Cleared, FlagIsFalseForAScopeAndTrueAfterIt) {
    bool flag = true;
    {
        const Cleared guard(flag);
        EXPECT_FALSE(flag);
    }
    EXPECT_TRUE(flag);
}

TEST(Cleared, AnInnerScopeDoesNotEndTheOuterOne) {
    bool flag = true;
    const Cleared outer(flag);
    {
        const Cleared inner(flag);
        EXPECT_FALSE(flag);
    }
    EXPECT_FALSE(flag);
}

TEST(Cleared, AnErrorPutsTheFlagBack) {
    bool flag = true;
    try {
        const Cleared guard(flag);
        throw std::runtime_error("unexpected");
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "unexpected");
    }
    EXPECT_TRUE(flag);
}

TEST(Raised, FlagIsTrueForAScopeAndFalseAfterIt) {
    bool flag = false;
    {
        const Raised guard(flag);
        EXPECT_TRUE(flag);
    }
    EXPECT_FALSE(flag);
}

TEST(Raised, AnInnerScopeDoesNotEndTheOuterOne) {
    bool flag = false;
    const Raised outer(flag);
    {
        const Raised inner(flag);
        EXPECT_TRUE(flag);
    }
    EXPECT_TRUE(flag);
}

TEST(Raised, AnErrorPutsTheFlagBack) {
    bool flag = false;
    try {
        const Raised guard(flag);
        throw std::runtime_error("unexpected");
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "unexpected");
    }
    EXPECT_FALSE(flag);
}
