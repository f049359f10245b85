// How long does a user wait for a colour, from the key or the mouse until it is on the screen?
#include <array>
#include <vector>

#include "bench/Benches.h"
#include "bench/OtherProgram.h"
#include "resources/resource.h"

namespace {

void PressKey(WORD key) {
    std::array<INPUT, 2> inputs{};
    for (INPUT& input : inputs) {
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = KEYEVENTF_EXTENDEDKEY;
    }
    inputs[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void UseButton(DWORD pressOrRelease) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = pressOrRelease;
    ::SendInput(1, &input, sizeof input);
}

POINT CenterOf(HWND window) {
    RECT area{};
    ::GetWindowRect(window, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

/// Milliseconds until that place of the screen shows another colour, or a second.
template <class Change>
double TimeUntilSeen(HDC screen, POINT place, Change change) {
    constexpr double longest = 1000;
    const COLORREF old = ::GetPixel(screen, place.x, place.y);
    const double before = NowInMilliseconds();
    change();
    double time = 0;
    do {
        time = NowInMilliseconds() - before;
    } while (time < longest && ::GetPixel(screen, place.x, place.y) == old);
    return time;
}

}  // namespace

void BenchHand(const Effort& effort) {
    const int changes = effort.of(1000);
    const OtherProgram huevox("Huevox.exe");
    const HWND form = huevox.form();
    const HWND slider = ::GetDlgItem(form, IDC_hsbGreen);
    const POINT sample = CenterOf(::GetDlgItem(::GetDlgItem(form, IDC_picSampleContainer), IDC_picSample));
    const POINT thumb = CenterOf(slider);
    const HDC screen = ::GetDC(nullptr);
    ::SendMessageA(form, WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 128), reinterpret_cast<LPARAM>(slider));
    ::SendMessageA(form, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(slider), TRUE);
    std::vector<double> presses;
    presses.reserve(changes);
    for (int i = 0; i < changes; ++i) {
        presses.push_back(TimeUntilSeen(screen, sample, [i] { PressKey(i % 2 == 0 ? VK_RIGHT : VK_LEFT); }));
    }
    std::vector<double> movements;
    movements.reserve(changes);
    ::SetCursorPos(thumb.x, thumb.y);
    UseButton(MOUSEEVENTF_LEFTDOWN);
    for (int i = 0; i < changes; ++i) {
        const int distance = 5 + i % 2 * 10;
        movements.push_back(TimeUntilSeen(
            screen, sample, [thumb, distance] { ::SetCursorPos(thumb.x + distance, thumb.y); }));
    }
    UseButton(MOUSEEVENTF_LEFTUP);
    ::ReleaseDC(nullptr, screen);
    Tell("hand.count", changes);
    Tell("hand.press.ms", Median(presses));
    Tell("hand.drag.ms", Median(movements));
}
