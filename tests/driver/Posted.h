// Has the program handled what it has posted to itself?
#pragma once

#include <utility>

#include "resources/resource.h"
#include "tests/driver/Huevox.h"
#include "tests/driver/Wait.h"

/// Waits until it has: a caret moves only after that. Twice, because the first move may have come before it.
inline void WaitForPosted(const Huevox& huevox) {
    constexpr int box = IDC_txtName + 5;
    for (const int caret : {3, 4}) {
        ::PostMessageA(huevox.control(box), EM_SETSEL, caret, caret);
        EXPECT_BECOMES(huevox.selection(box), (std::pair{caret, caret}));
    }
}
