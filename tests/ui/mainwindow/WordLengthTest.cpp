// Has the program that the tests act on as many bits as they believe?
#include "tests/driver/RemoteCall.h"
#include "tests/driver/UiTest.h"

namespace {

class WordLength : public UiTest {};

/// 64-bit Windows runs 32-bit programs apart from its own.
bool RunsApart(HWND window) {
    BOOL isApart = FALSE;
    EXPECT_TRUE(::IsWow64Process(ProcessOf(window).handle(), &isApart)) << "error " << ::GetLastError();
    return isApart != FALSE;
}

}  // namespace

TEST_F(WordLength, Is64) {
    const Huevox huevox;
    EXPECT_FALSE(RunsApart(huevox.window()));
}

TEST_F(WordLength, Is32) {
    const Huevox huevox;
    EXPECT_TRUE(RunsApart(huevox.window()));
}
