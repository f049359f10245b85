#include "tests/ui/Input.h"

#include <algorithm>

#include "tests/ui/Wait.h"

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

/// A pixel as a part of an extent of all monitors in 65536 steps, so that it comes out as the same pixel
/// again.
LONG Absolute(LONG pixel, int start, int extent) {
    return ((pixel - ::GetSystemMetrics(start)) * 65536 + 65536 / 2) / ::GetSystemMetrics(extent);
}

/// Buttons bring their place with them: a display reports earlier moves late, and they take the pointer back.
void SendMouse(POINT screen, DWORD button = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = Absolute(screen.x, SM_XVIRTUALSCREEN, SM_CXVIRTUALSCREEN);
    input.mi.dy = Absolute(screen.y, SM_YVIRTUALSCREEN, SM_CYVIRTUALSCREEN);
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK | button;
    ::SendInput(1, &input, sizeof input);
}

bool IsHeld(WORD key) { return ::GetAsyncKeyState(key) < 0; }

/// Until the window's program has done what it was at.
void WaitForAnswer(HWND window) {
    constexpr UINT longEnough = 500;
    ::SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, longEnough, nullptr);
}

/// Again and again until it is so: a program that hears of the display's keys while another key is down
/// writes the states of all keys back as it has read them a moment ago.
void SetHeld(WORD modifier, bool isHeld) {
    constexpr int mostTimes = 20;
    for (int time = 0; time < mostTimes; ++time) {
        SendKey(modifier, isHeld ? 0 : KEYEVENTF_KEYUP);
        WaitForAnswer(::GetForegroundWindow());
        if (IsHeld(modifier) == isHeld) return;
    }
}

/// Any program may bring a modifier key back, not only the one in front.
void LetGoOfOthers(std::initializer_list<WORD> modifiers) {
    for (const WORD modifier : {VK_SHIFT, VK_CONTROL, VK_MENU}) {
        if (IsHeld(modifier) && std::ranges::find(modifiers, modifier) == modifiers.end())
            SetHeld(modifier, false);
    }
}

/// Until the display has done what it was asked to do and the window's program has taken in what it tells of
/// it.
void WaitForReports(HWND window) {
    const HDC screen = ::GetDC(nullptr);
    // The display answers in the order of its callers: the second time all earlier wishes have been heard.
    ::GetPixel(screen, 0, 0);
    ::GetPixel(screen, 0, 0);
    ::ReleaseDC(nullptr, screen);
    WaitForAnswer(window);
}

/// Puts the pointer there, again and again until it stays: a display reports earlier moves late, and such a
/// report between press and release takes it off what was pressed.
void RestPointer(POINT screen) {
    constexpr int mostLooks = 100;
    constexpr int enough = 3;
    int steady = 0;
    SendMouse(screen);
    for (int look = 0; look < mostLooks && steady < enough; ++look) {
        WaitForReports(::WindowFromPoint(screen));
        POINT pointer{};
        ::GetCursorPos(&pointer);
        const bool isThere = pointer.x == screen.x && pointer.y == screen.y;
        steady = isThere ? steady + 1 : 0;
        if (!isThere) SendMouse(screen);
    }
}

}  // namespace

void KeyDown(WORD key) { SendKey(key, 0); }
void KeyUp(WORD key) { SendKey(key, KEYEVENTF_KEYUP); }

void Press(WORD key, std::initializer_list<WORD> modifiers) {
    LetGoOfOthers(modifiers);
    for (const WORD modifier : modifiers) SetHeld(modifier, true);
    KeyDown(key);
    KeyUp(key);
    for (const WORD modifier : modifiers) SetHeld(modifier, false);
}

void Type(std::string_view text) {
    for (const char character : text) {
        const SHORT scan = ::VkKeyScanA(character);
        const auto key = static_cast<WORD>(LOBYTE(scan));
        if (HIBYTE(scan) & 1) {
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

POINT CenterOf(HWND window) {
    RECT area{};
    ::GetWindowRect(window, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

void WaitUntilAtRest(HWND window) {
    const auto corner = [window] { return OnScreen(window, {0, 0}); };
    EXPECT_TRUE(Eventually([&] {
        const POINT before = corner();
        return Throughout(200, [&] {
            const POINT now = corner();
            return now.x == before.x && now.y == before.y;
        });
    }));
}

void MoveMouse(POINT screen) { SendMouse(screen); }
void PressButton(POINT screen) { SendMouse(screen, MOUSEEVENTF_LEFTDOWN); }
void ReleaseButton(POINT screen) { SendMouse(screen, MOUSEEVENTF_LEFTUP); }

void PressRightButton(POINT screen) { SendMouse(screen, MOUSEEVENTF_RIGHTDOWN); }
void ReleaseRightButton(POINT screen) { SendMouse(screen, MOUSEEVENTF_RIGHTUP); }

void RightClick(POINT screen) {
    RestPointer(screen);
    PressRightButton(screen);
    ReleaseRightButton(screen);
}

void Click(POINT screen) {
    RestPointer(screen);
    PressButton(screen);
    ReleaseButton(screen);
}

// A new window may still move while the pointer comes to rest.
void Click(HWND window) {
    constexpr int mostLooks = 10;
    POINT place = CenterOf(window);
    RestPointer(place);
    for (int look = 0; look < mostLooks; ++look) {
        const POINT now = CenterOf(window);
        if (now.x == place.x && now.y == place.y) break;
        place = now;
        RestPointer(place);
    }
    PressButton(place);
    ReleaseButton(place);
}

void DoubleClick(HWND window) {
    Click(window);
    Click(window);
}
