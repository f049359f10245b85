// How does a test wait for what it expects?
#pragma once

#include <gtest/gtest.h>

#include "toolkit/Platform.h"

/// Looks again and again until condition is true. False when it still is not after the limit.
template <class Condition>
bool Eventually(Condition condition, DWORD milliseconds = 15'000) {
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    while (!condition()) {
        if (::GetTickCount64() >= end) return false;
        ::Sleep(5);
    }
    return true;
}

/// Looks again and again for as long as milliseconds, for something that must not happen. False when it does.
template <class Condition>
bool Throughout(DWORD milliseconds, Condition condition) {
    return !Eventually([&] { return !condition(); }, milliseconds);
}

/// Reads a value again and again until it is the expected one.
template <class Read, class Expected>
testing::AssertionResult Becomes(Read read, const Expected& expected) {
    auto actual = read();
    if (Eventually([&] { return (actual = read()) == expected; })) return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << "stays " << testing::PrintToString(actual) << ", expected " << testing::PrintToString(expected);
}

// Other programs see a change a moment after the input that causes it.
#define EXPECT_BECOMES(value, expected) EXPECT_TRUE(Becomes([&] { return (value); }, expected)) << #value
#define ASSERT_BECOMES(value, expected) ASSERT_TRUE(Becomes([&] { return (value); }, expected)) << #value
