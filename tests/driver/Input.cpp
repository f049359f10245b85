#include "tests/driver/Input.h"

#include <array>

#include "tests/driver/LastKeys.h"
#include "tests/driver/Modifiers.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

namespace {

bool IsExtended(WORD key) {
    switch (key) {
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
        case VK_HOME:
        case VK_END:
        case VK_PRIOR:
        case VK_NEXT:
        case VK_DELETE:
        case VK_INSERT: return true;
        default: return false;
    }
}

void SendKey(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags | (IsExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0);
    ::SendInput(1, &input, sizeof input);
}

/// A pixel's place across all monitors in 65536 steps, such that Windows finds the same pixel again.
LONG Absolute(LONG pixel, int start, int extent) {
    return ((pixel - ::GetSystemMetrics(start)) * 65536 + 65536 / 2) / ::GetSystemMetrics(extent);
}

INPUT MouseInput(POINT screen, DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = Absolute(screen.x, SM_XVIRTUALSCREEN, SM_CXVIRTUALSCREEN);
    input.mi.dy = Absolute(screen.y, SM_YVIRTUALSCREEN, SM_CYVIRTUALSCREEN);
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK | flags;
    return input;
}

void SendMouse(POINT screen, DWORD flags) {
    INPUT input = MouseInput(screen, flags);
    ::SendInput(1, &input, sizeof input);
}

/// Keys are lost that come while no window takes them, or none yet.
void WaitForKeys() {
    EXPECT_TRUE(Eventually([] {
        return TakesKeys(::GetWindowThreadProcessId(::GetForegroundWindow(), nullptr));
    })) << "no window takes keys";
}

/// As a keyboard on the screen does: the unit of UTF-16 comes without a key.
void PressWithoutKey(wchar_t unit) {
    WaitForKeys();
    LetGoOfOthers({});
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = unit;
    for (const DWORD flags : {0UL, static_cast<DWORD>(KEYEVENTF_KEYUP)}) {
        input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
        ::SendInput(1, &input, sizeof input);
    }
}

/// Waits until the window's program, if it is another, has no input left to handle: only then does it paint.
void WaitForEndOfInput(HWND window) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (!window || process == ::GetCurrentProcessId()) return;
    constexpr RECT corner = {0, 0, 1, 1};
    ::InvalidateRect(window, &corner, FALSE);
    EXPECT_TRUE(Eventually([window] { return !::GetUpdateRect(window, nullptr, FALSE); }))
        << "does not paint";
}

}  // namespace

bool TakesKeys(DWORD thread) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    const HWND front = ::GetForegroundWindow();
    return ::GetWindowThreadProcessId(front, nullptr) == thread && ::GetGUIThreadInfo(thread, &info) &&
           info.hwndFocus != nullptr;
}

void KeyDown(WORD key) { SendKey(key, 0); }
void KeyUp(WORD key) { SendKey(key, KEYEVENTF_KEYUP); }

void Press(WORD key, std::initializer_list<WORD> modifiers) {
    WaitForKeys();
    // Some program may still write back what was held during the key before.
    if (modifiers.size() > 0) WaitForEverybody();
    LetGoOfOthers(modifiers);
    for (const WORD modifier : modifiers) SetHeld(modifier, true);
    KeyDown(key);
    RememberKey(key);
    KeyUp(key);
    for (const WORD modifier : modifiers) SetHeld(modifier, false);
}

void Type(std::string_view text) {
    for (const wchar_t unit : Wide(text)) {
        const SHORT scan = ::VkKeyScanW(unit);
        const auto key = static_cast<WORD>(LOBYTE(scan));
        if (scan == -1) {
            PressWithoutKey(unit);
        } else if (HIBYTE(scan) & 1) {
            Press(key, {VK_SHIFT});
        } else {
            Press(key);
        }
    }
}

POINT OnScreen(HWND window, POINT point) {
    ::MapWindowPoints(window, nullptr, &point, 1);
    return point;
}

RECT AreaOf(HWND window, int border) {
    RECT area{};
    ::GetWindowRect(window, &area);
    ::InflateRect(&area, -border, -border);
    return area;
}

POINT CenterOf(HWND window) {
    const RECT area = AreaOf(window);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

bool IsOnTop(HWND window, POINT screen) {
    const HWND form = ::GetAncestor(window, GA_ROOT);
    return !::IsWindowEnabled(form) || ::GetAncestor(::WindowFromPoint(screen), GA_ROOT) == form;
}

void ExpectOnTop(HWND window, POINT screen) {
    EXPECT_TRUE(Eventually([&] { return IsOnTop(window, screen); }))
        << "covered by " << ClassOf(::WindowFromPoint(screen));
}

/// By way of the pixel beside it: a movement is lost that comes while the program is about to take another,
/// and Windows makes one up where a window comes or goes.
void MoveMouse(POINT screen) {
    SendMouse({screen.x - 1, screen.y}, 0);
    WaitForEndOfInput(::GetForegroundWindow());
    SendMouse(screen, 0);
}

void PressButton(POINT screen) { SendMouse(screen, MOUSEEVENTF_LEFTDOWN); }
void ReleaseButton(POINT screen) { SendMouse(screen, MOUSEEVENTF_LEFTUP); }

void TurnWheel(int notches) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.mouseData = static_cast<DWORD>(notches) * WHEEL_DELTA;
    input.mi.dwFlags = MOUSEEVENTF_WHEEL;
    ::SendInput(1, &input, sizeof input);
}

void PressRightButton(POINT screen) { SendMouse(screen, MOUSEEVENTF_RIGHTDOWN); }
void ReleaseRightButton(POINT screen) { SendMouse(screen, MOUSEEVENTF_RIGHTUP); }

void RightClick(POINT screen) {
    PressRightButton(screen);
    ReleaseRightButton(screen);
}

void Click(POINT screen) {
    PressButton(screen);
    ReleaseButton(screen);
}

/// Waits until no other window covers it. A tool tip goes when the mouse comes over it, and none comes up
/// below the mouse.
void Click(HWND window) {
    ASSERT_TRUE(::IsWindow(window)) << "nothing to click";
    MoveMouse(CenterOf(window));
    ExpectOnTop(window, CenterOf(window));
    Click(CenterOf(window));
}

// All at once: only clicks that follow each other quickly are a double click.
void DoubleClick(HWND window) {
    const POINT place = CenterOf(window);
    const INPUT press = MouseInput(place, MOUSEEVENTF_LEFTDOWN);
    const INPUT release = MouseInput(place, MOUSEEVENTF_LEFTUP);
    std::array inputs = {press, release, press, release};
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}
