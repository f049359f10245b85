// How does a test wait for what it expects?
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "toolkit/platform/Platform.h"

/// Milliseconds since the system's start in which the processors, on average, had nothing to do.
inline ULONGLONG IdleMilliseconds() {
    static const DWORD processors = [] {
        SYSTEM_INFO system{};
        ::GetSystemInfo(&system);
        return system.dwNumberOfProcessors;
    }();
    constexpr ULONGLONG ticksInMillisecond = 10'000;
    FILETIME idle{};
    FILETIME kernel{};
    FILETIME user{};
    ::GetSystemTimes(&idle, &kernel, &user);
    const ULONGLONG ticks = static_cast<ULONGLONG>(idle.dwHighDateTime) << 32 | idle.dwLowDateTime;
    return ticks / ticksInMillisecond / processors;
}

/// How long something is waited for. It ends when the processors have been idle for so long that whoever has
/// something to do could have done it: a busy machine only takes longer. Where a neighbour never rests, a
/// limit ends it that only a hang reaches.
class Patience {
public:
    bool isOver() const {
        return IdleMilliseconds() - idleBegin >= enough || ::GetTickCount64() - begin >= hang;
    }

private:
    static constexpr ULONGLONG enough = 8'000;
    static constexpr ULONGLONG hang = 300'000;
    ULONGLONG idleBegin = IdleMilliseconds();
    ULONGLONG begin = ::GetTickCount64();
};

/// How long this process has waited in all.
inline ULONGLONG& WaitedMilliseconds() {
    static ULONGLONG waited = 0;
    return waited;
}

/// Adds its lifetime to that. One wait may contain others.
class Waiting {
public:
    Waiting() = default;
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;
    ~Waiting() { WaitedMilliseconds() = before + (::GetTickCount64() - begin); }

private:
    ULONGLONG before = WaitedMilliseconds();
    ULONGLONG begin = ::GetTickCount64();
};

/// The pause between looks grows: what comes soon is seen soon, and a long wait leaves the processors to
/// others.
class Pause {
public:
    void take() {
        ::Sleep(length);
        length = std::min(2 * length, longest);
    }

private:
    static constexpr DWORD longest = 32;
    DWORD length = 1;
};

/// Looks again and again until condition is true. False when it does not become true.
template <class Condition>
[[nodiscard]] bool Eventually(Condition condition) {
    const Waiting waiting;
    const Patience patience;
    Pause pause;
    while (!condition()) {
        if (patience.isOver()) return false;
        pause.take();
    }
    return true;
}

/// Looks again and again for as long as milliseconds, for something that must not happen. False when it does.
template <class Condition>
[[nodiscard]] bool Throughout(DWORD milliseconds, Condition condition) {
    constexpr DWORD betweenLooks = 20;
    const Waiting waiting;
    const ULONGLONG end = ::GetTickCount64() + milliseconds;
    while (::GetTickCount64() < end) {
        if (!condition()) return false;
        ::Sleep(betweenLooks);
    }
    return true;
}

/// Reads a value again and again until it is the expected one.
template <class Read, class Expected>
[[nodiscard]] testing::AssertionResult Becomes(Read read, const Expected& expected) {
    auto actual = read();
    if (Eventually([&] { return (actual = read()) == expected; })) return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << "stays " << testing::PrintToString(actual) << ", expected " << testing::PrintToString(expected);
}

// Other programs see a change a moment after the input that causes it.
#define EXPECT_BECOMES(value, expected) EXPECT_TRUE(Becomes([&] { return (value); }, expected)) << #value
#define ASSERT_BECOMES(value, expected) ASSERT_TRUE(Becomes([&] { return (value); }, expected)) << #value
