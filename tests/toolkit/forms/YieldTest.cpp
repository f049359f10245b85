// What does Yield let through, and what waits for the end of the handler?
#include <thread>

#include "tests/driver/Input.h"
#include "tests/toolkit/FormFixture.h"

namespace {

class YieldTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        show();
    }
    void TearDown() override { form.unload(); }
};

}  // namespace

TEST_F(YieldTest, LetsPaintingThrough) {
    form.picTest.setBackColor(0x123456);
    ASSERT_TRUE(::GetUpdateRect(form.picTest.handle(), nullptr, FALSE));
    Yield();
    EXPECT_FALSE(::GetUpdateRect(form.picTest.handle(), nullptr, FALSE));
}

TEST_F(YieldTest, LetsSentMessagesThrough) {
    int changes = 0;
    form.hsbTest.Change.bind([&] { ++changes; });
    bool hasReturned = false;
    std::thread other([&] {
        ::SendMessageA(form.handle(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 9),
                       reinterpret_cast<LPARAM>(form.hsbTest.handle()));
        hasReturned = true;
    });
    for (int round = 0; round < 1000 && changes == 0; ++round) {
        Yield();
        ::Sleep(1);
    }
    other.join();
    EXPECT_TRUE(hasReturned);
    EXPECT_EQ(changes, 1);
}

TEST_F(YieldTest, PaintsAlsoWhenASentMessageComesFirst) {
    // Several, because the display may have news just then, for which Wine looks again.
    for (PackedColor color = 1; color <= 10; ++color) {
        std::thread other([&] { ::SendMessageA(form.handle(), WM_NULL, 0, 0); });
        while (!(HIWORD(::GetQueueStatus(QS_SENDMESSAGE)) & QS_SENDMESSAGE)) ::Sleep(1);
        form.picTest.setBackColor(color);
        Yield();
        EXPECT_FALSE(::GetUpdateRect(form.picTest.handle(), nullptr, FALSE));
        other.join();
    }
}

TEST_F(YieldTest, LeavesPostedMessagesKeysAndTimersWaiting) {
    int commands = 0;
    int ticks = 0;
    form.Command.bind([&](int) { ++commands; });
    Click(form.txtTest(0).handle());
    ASSERT_TRUE(PumpUntil([&] { return ::GetFocus() == form.txtTest(0).handle(); }));
    form.tmrTest.Tick.bind([&] { ++ticks; });
    ::PostMessageA(form.handle(), WM_COMMAND, IDM_mnuTest, 0);
    Type("x");
    ::Sleep(60);
    for (int round = 0; round < 5; ++round) {
        // Without anything to paint it would not look at messages at all.
        ::InvalidateRect(form.picTest.handle(), nullptr, FALSE);
        Yield();
    }
    EXPECT_EQ(commands, 0);
    EXPECT_EQ(ticks, 0);
    EXPECT_EQ(form.txtTest(0).text(), "");
    EXPECT_TRUE(PumpUntil([&] { return commands == 1 && ticks > 0 && form.txtTest(0).text() == "x"; }));
}

TEST_F(YieldTest, ComesBackFromAWindowThatNeverCallsItselfPainted) {
    WNDCLASSA restless{};
    restless.lpfnWndProc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        return message == WM_PAINT ? 0 : ::DefWindowProcA(window, message, wParam, lParam);
    };
    restless.lpszClassName = "Restless";
    ::RegisterClassA(&restless);
    const HWND window = ::CreateWindowExA(0, "Restless", "", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10,
                                          form.handle(), nullptr, nullptr, nullptr);
    ::InvalidateRect(window, nullptr, FALSE);
    Yield();
    EXPECT_TRUE(::GetUpdateRect(window, nullptr, FALSE));
    ::DestroyWindow(window);
}
