// How are typed values refused?
#pragma once

#include <utility>

#include "tests/driver/UiTest.h"

inline constexpr const char* decimalRefusal =
    "The value is not allowed. Only values from 0 to 255 are allowed.";
inline constexpr const char* hexRefusal = "The value is not allowed. Only values from 00 to FF are allowed.";

/// Closes the message and expects the box that failed to be ready for another value.
inline void ExpectRefusal(const Huevox& huevox, const char* text, int failingBox) {
    CloseMessage(huevox, text);
    EXPECT_BECOMES(huevox.focused(), failingBox);
    const int length = static_cast<int>(huevox.text(failingBox).size());
    EXPECT_BECOMES(huevox.selection(failingBox), (std::pair<int, int>{0, length}));
    EXPECT_BECOMES(huevox.isEnabled(IDC_cmdSetColor), false);
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetDec), true);
    EXPECT_BECOMES(huevox.isEnabled(IDC_optSetHex), true);
}
