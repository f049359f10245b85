// When is the preview due on the clipboard?
#pragma once

#include <cstdint>

/// Counts the timer's ticks since the preview last changed, so that dragging a slider does not flood the
/// clipboard.
class ClipTicks {
public:
    void reset() { ticks = 0; }

    /// Counts one tick. True exactly on the third since the last reset.
    bool count() {
        const bool isDue = ++ticks == dueTick;
        if (ticks >= wrapTick) ticks = 0;
        return isDue;
    }

private:
    static constexpr std::int32_t dueTick = 3;
    static constexpr std::int32_t wrapTick =
        1'000'000'001;  // an unchanged colour is written again after years

    std::int32_t ticks = 0;
};
