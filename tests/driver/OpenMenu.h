// What does the menu that is open show? Other programs see of a menu only its pixels.
#pragma once

#include <algorithm>
#include <vector>

#include "tests/driver/Input.h"
#include "tests/driver/Pixel.h"

/// The menu that is open, or nullptr.
inline HWND OpenMenu() {
    const HWND menu = ::FindWindowA("#32768", nullptr);
    return menu && ::IsWindowVisible(menu) ? menu : nullptr;
}

/// What the last item of a menu shows where its check mark stands.
enum class CheckMark { unpainted, absent, present };

/// Of no menu: unpainted.
inline CheckMark LastCheckMark(HWND menu) {
    if (!menu) return CheckMark::unpainted;
    constexpr int border = 4;
    const RECT area = AreaOf(menu, border);
    const Color ground = Unpack(static_cast<PackedColor>(::GetSysColor(COLOR_MENU)));
    if (Pixel({area.right - 1, area.bottom - 1}) != ground) return CheckMark::unpainted;
    const int height = ::GetSystemMetrics(SM_CYMENUCHECK);
    const int width = ::GetSystemMetrics(SM_CXMENUCHECK);
    const std::vector<Color> pixels =
        PixelsOf({area.left, area.bottom - height, area.left + width, area.bottom});
    const auto isMark = [ground](Color pixel) { return pixel != ground; };
    return std::ranges::any_of(pixels, isMark) ? CheckMark::present : CheckMark::absent;
}
