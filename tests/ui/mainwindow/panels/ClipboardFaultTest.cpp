// Does the program go on while others keep the clipboard from it?
#include <atomic>
#include <random>
#include <set>
#include <string>
#include <thread>

#include "tests/driver/UiTest.h"

namespace {

class ClipboardFaults : public UiTest {
protected:
    /// Moves the green slider by one and expects the window to follow. The new notation.
    static std::string Change(const Huevox& huevox) {
        const std::string before = huevox.text(IDC_lblClipboard);
        Press(VK_RIGHT);
        EXPECT_TRUE(Eventually([&] { return huevox.text(IDC_lblClipboard) != before; }));
        return huevox.text(IDC_lblClipboard);
    }
};

/// Opens the clipboard and closes it again at random moments, as a crowd of programs does.
class Crowd {
public:
    Crowd() : thread([this] { run(); }) {}
    Crowd(const Crowd&) = delete;
    Crowd& operator=(const Crowd&) = delete;
    ~Crowd() {
        isOver = true;
        thread.join();
    }

private:
    void run() {
        std::mt19937 random(7);
        std::uniform_int_distribution<DWORD> moment(0, 60);
        while (!isOver) {
            const bool isOpen = ::OpenClipboard(nullptr) != FALSE;
            ::Sleep(moment(random));
            if (isOpen) ::CloseClipboard();
            ::Sleep(moment(random));
        }
    }

    std::atomic<bool> isOver = false;
    std::thread thread;
};

}  // namespace

TEST_F(ClipboardFaults, AClipboardHeldForLongHoldsNothingElseUp) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    CopyElsewhere("theirs");
    huevox.focusSlider(IDC_hsbGreen);
    std::string shown;
    {
        const ClipboardHeld held;
        // Longer than several copies take, with pauses that are long enough for each.
        for (int change = 0; change < 3; ++change) {
            shown = Change(huevox);
            EXPECT_TRUE(Throughout(700, [&] { return huevox.text(IDC_lblClipboard) == shown; }));
        }
    }
    EXPECT_EQ(shown, "#FF0300");
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_EQ(ClipboardText(), "theirs");
    EXPECT_EQ(Change(huevox), "#FF0400");
    EXPECT_BECOMES(ClipboardText(), "#FF0400");
}

TEST_F(ClipboardFaults, AClipboardHeldAtRandomMomentsGetsWholeNotationsOrNone) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    huevox.focusSlider(IDC_hsbGreen);
    std::set<std::string> shown = {"#FF0000"};
    {
        const Crowd crowd;
        for (int change = 0; change < 4; ++change) {
            shown.insert(Change(huevox));
            EXPECT_TRUE(Throughout(600, [&] { return huevox.isRunning(); }));
        }
    }
    EXPECT_TRUE(shown.contains(ClipboardText())) << ClipboardText();
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_EQ(Change(huevox), "#FF0500");
    EXPECT_BECOMES(ClipboardText(), "#FF0500");
}
