// Who may keep a form from going, and what ends with it.
#include "tests/toolkit/FormFixture.h"
#include "toolkit/forms/MessageLoop.h"

TEST_F(FormTest, QueryUnloadCanKeepIt) {
    bool isKept = true;
    form.QueryUnload.bind([&](bool& isCancelled) { isCancelled = isKept; });
    form.Unload.bind([&] { events.emplace_back("Unload"); });
    form.load();
    form.unload();
    EXPECT_TRUE(form.isLoaded());
    EXPECT_TRUE(events.empty());
    isKept = false;
    form.unload();
    EXPECT_FALSE(form.handle());
    EXPECT_EQ(events, (std::vector<std::string>{"Unload"}));
}

TEST_F(FormTest, TheCloseBoxUnloadsUnlessAModalWindowHasDisabledTheForm) {
    show();
    ::EnableWindow(form.handle(), FALSE);
    ::SendMessageA(form.handle(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(form.isLoaded());
    ::EnableWindow(form.handle(), TRUE);
    ::SendMessageA(form.handle(), WM_CLOSE, 0, 0);
    EXPECT_FALSE(form.handle());
}

TEST_F(FormTest, AtTheEndOfTheSessionAsksOnceAndUnloadsWhenItReallyEnds) {
    int asked = 0;
    bool isCancelled = true;
    form.QueryUnload.bind([&](bool& cancel) {
        ++asked;
        cancel = isCancelled;
    });
    form.load();
    EXPECT_FALSE(::SendMessageA(form.handle(), WM_QUERYENDSESSION, 0, 0));
    isCancelled = false;
    EXPECT_TRUE(::SendMessageA(form.handle(), WM_QUERYENDSESSION, 0, 0));
    ::SendMessageA(form.handle(), WM_ENDSESSION, FALSE, 0);
    EXPECT_TRUE(form.isLoaded());
    EXPECT_EQ(asked, 2);
    ::SendMessageA(form.handle(), WM_ENDSESSION, TRUE, 0);
    EXPECT_FALSE(form.handle());
    EXPECT_EQ(asked, 2);
}

TEST_F(FormTest, AtTheEndOfTheSessionAnOpenQuestionIsAnsweredFirst) {
    LRESULT mayEnd = TRUE;
    int asked = 0;
    form.QueryUnload.bind([&](bool& isCancelled) {
        ++asked;
        mayEnd = ::SendMessageA(form.handle(), WM_QUERYENDSESSION, 0, 0);
        isCancelled = asked == 1;
    });
    form.load();
    form.unload();
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(mayEnd);
    form.unload();
}

TEST_F(FormTest, TheLastOneEndsTheMessageLoop) {
    TestForm second;
    form.load();
    second.load();
    form.unload();
    MSG message;
    EXPECT_FALSE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    second.unload();
    EXPECT_EQ(RunMessageLoop(), 0);
}

TEST_F(FormTest, AMessageForAWindowThatHasGoneReachesNoOther) {
    TestForm second;
    form.load();
    second.load();
    const HWND gone = form.handle();
    const HWND other = second.handle();
    const auto proc = reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(gone, GWLP_WNDPROC));
    form.unload();
    ::CallWindowProcW(proc, gone, WM_NULL, 0, 0);
    EXPECT_EQ(second.handle(), other);
    second.unload();
}
