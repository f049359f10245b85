// How does the program end by an error that nobody expected?
#include "support/FatalError.h"

#include <atomic>
#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/Messages.h"
#include "tests/driver/WindowText.h"
#include "tests/toolkit/FormFixture.h"
#include "toolkit/forms/MsgBox.h"
#include "toolkit/platform/Redraw.h"

namespace {

/// A user who answers every message box, at once or when it is time, and notes what it said.
class Answering {
public:
    ~Answering() {
        isOver = true;
        user.join();
    }

    std::vector<std::string> messages;
    std::atomic<bool> isTime = true;
    std::atomic<bool> isOpenBoxShown = false;

private:
    static BOOL CALLBACK FindBox(HWND window, LPARAM parameter) {
        if (ClassOf(window) != "#32770" || !::IsWindowVisible(window)) return TRUE;
        *reinterpret_cast<HWND*>(parameter) = window;
        return FALSE;
    }

    void answer() {
        std::set<HWND> seen;
        while (!isOver) {
            HWND box = nullptr;
            ::EnumWindows(FindBox, reinterpret_cast<LPARAM>(&box));
            if (box && isTime && seen.insert(box).second) {
                messages.push_back(TextOf(::GetDlgItem(box, 0xFFFF)));
                if (messages.back() == "open") {
                    isOpenBoxShown = true;
                } else {
                    ::PostMessageA(box, WM_COMMAND, IDOK, 0);
                }
            }
            ::Sleep(5);
        }
    }

    std::atomic<bool> isOver = false;
    std::thread user{[this] { answer(); }};  // last, when all that it looks at is there
};

class FatalError : public FormsTest {
protected:
    void SetUp() override {
        FormsTest::SetUp();
        errorTrap = HandleFatalError;
        form.Unload.bind([this] { ++unloads; });
        form.load();
        form.show(SW_SHOWNORMAL);
    }

    TestForm form;
    int unloads = 0;
};

class ErrorBeforeTheTrapIsArmed : public FatalError {};

/// A clock that goes on behind a message, and does something at the fifth beat.
class Clock {
public:
    explicit Clock(std::function<void()> atFifth) : number(::SetTimer(nullptr, 0, 20, beat)) {
        beats = 0;
        doAtFifth = std::move(atFifth);
    }
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    ~Clock() { ::KillTimer(nullptr, number); }

private:
    static void CALLBACK beat(HWND, UINT, UINT_PTR, DWORD) {
        if (++beats == 5) doAtFifth();
    }

    inline static int beats = 0;
    inline static std::function<void()> doAtFifth;
    UINT_PTR number;
};

void Fail() { throw std::runtime_error("unexpected"); }

}  // namespace

// A suite of its own, because each has its own process: once armed, the trap stays armed.
TEST_F(ErrorBeforeTheTrapIsArmed, SaysAndDoesNothing) {
    Answering answering;
    form.cmdTest.Click.bind(Fail);
    ::SendMessageA(form.handle(), WM_COMMAND, MAKEWPARAM(IDC_cmdTest, BN_CLICKED),
                   reinterpret_cast<LPARAM>(form.cmdTest.handle()));
    EXPECT_TRUE(answering.messages.empty());
    EXPECT_TRUE(form.handle());
    EXPECT_FALSE(IsErrorExitInProgress());
    form.unload();
}

TEST_F(FatalError, ShowsOneMessageAndUnloadsEveryWindow) {
    TestForm second;
    second.load();
    ArmErrorTrap();
    Answering answering;
    form.cmdTest.Click.bind(Fail);
    ::SendMessageA(form.handle(), WM_COMMAND, MAKEWPARAM(IDC_cmdTest, BN_CLICKED),
                   reinterpret_cast<LPARAM>(form.cmdTest.handle()));
    EXPECT_EQ(answering.messages,
              (std::vector<std::string>{"Huevox encountered an unexpected error and must close."}));
    EXPECT_FALSE(form.handle());
    EXPECT_FALSE(second.handle());
    EXPECT_TRUE(IsErrorExitInProgress());
    EXPECT_EQ(unloads, 1);
}

TEST_F(FatalError, ShowsOneMessageWhenUnloadingFailsToo) {
    ArmErrorTrap();
    Answering answering;
    form.Unload.bind(Fail);
    form.Deactivate.bind(Fail);
    HandleFatalError();
    EXPECT_EQ(answering.messages.size(), 1U);
    EXPECT_FALSE(form.handle());
}

TEST_F(FatalError, KeepsItsMessageWhenAFurtherErrorComes) {
    ArmErrorTrap();
    Answering answering;
    answering.isTime = false;
    bool isStillOpen = false;
    const Clock clock([&] {
        HandleFatalError();
        isStillOpen = form.handle() != nullptr;
        answering.isTime = true;
    });
    HandleFatalError();
    EXPECT_TRUE(isStillOpen);
    EXPECT_EQ(answering.messages.size(), 1U);
    EXPECT_FALSE(form.handle());
}

TEST_F(FatalError, LetsNoTimerTickBehindTheMessage) {
    ArmErrorTrap();
    int ticks = 0;
    form.tmrTest.Tick.bind([&] { ++ticks; });
    Answering answering;
    answering.isTime = false;
    const Clock clock([&] { answering.isTime = true; });
    HandleFatalError();
    EXPECT_EQ(answering.messages.size(), 1U);
    EXPECT_EQ(ticks, 0);
}

TEST_F(FatalError, EndsAMessageBoxThatIsOpen) {
    ArmErrorTrap();
    Answering answering;
    form.tmrTest.Tick.bind([&] {
        if (answering.isOpenBoxShown) Fail();
    });
    MsgBox(&form, "open", MB_YESNO, messages::title);
    EXPECT_EQ(answering.messages,
              (std::vector<std::string>{"open", "Huevox encountered an unexpected error and must close."}));
    EXPECT_FALSE(form.handle());
}

TEST_F(FatalError, ReleasesTheMouseAndTheRedraw) {
    ArmErrorTrap();
    Answering answering;
    answering.isTime = false;
    HWND captured = form.picTest.handle();
    const Clock clock([&] {
        captured = ::GetCapture();
        answering.isTime = true;
    });
    ::SetCapture(form.picTest.handle());
    FreezeRedraw(form.handle());
    HandleFatalError();
    EXPECT_FALSE(captured);
    EXPECT_TRUE(::LockWindowUpdate(::GetDesktopWindow()));
    UnfreezeRedraw();
}
