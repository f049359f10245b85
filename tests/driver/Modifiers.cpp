#include "tests/driver/Modifiers.h"

#include <algorithm>
#include <future>
#include <set>

#include "tests/driver/Input.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

namespace {

/// Asked in a thread of its own: for 50 ms Wine answers the same thread from memory that a key is not held,
/// even if another program has pressed it since.
std::set<WORD> HeldModifiers() {
    const auto ask = [] {
        std::set<WORD> held;
        for (const WORD modifier : {VK_SHIFT, VK_CONTROL, VK_MENU}) {
            if (::GetAsyncKeyState(modifier) < 0) held.insert(modifier);
        }
        return held;
    };
    return std::async(std::launch::async, ask).get();
}

/// Waits until the window's program has done what it was doing.
void WaitForAnswer(HWND window) { AnswerOf(window, WM_NULL); }

BOOL CALLBACK WaitForThread(HWND window, LPARAM parameter) {
    auto& threads = *reinterpret_cast<std::set<DWORD>*>(parameter);
    const DWORD thread = ::GetWindowThreadProcessId(window, nullptr);
    const bool isOther = thread != ::GetCurrentThreadId() && ::IsWindowVisible(window);
    if (isOther && threads.insert(thread).second) WaitForAnswer(window);
    return TRUE;
}

}  // namespace

void WaitForEverybody() {
    std::set<DWORD> threads;
    ::EnumWindows(WaitForThread, reinterpret_cast<LPARAM>(&threads));
    WaitForAnswer(::GetDesktopWindow());
}

void SetHeld(WORD modifier, bool isHeld) {
    EXPECT_TRUE(Eventually([&] {
        isHeld ? KeyDown(modifier) : KeyUp(modifier);
        WaitForEverybody();
        return HeldModifiers().contains(modifier) == isHeld;
    })) << modifier;
}

void LetGoOfOthers(std::initializer_list<WORD> modifiers) {
    for (const WORD modifier : HeldModifiers()) {
        if (std::ranges::find(modifiers, modifier) == modifiers.end()) SetHeld(modifier, false);
    }
}
