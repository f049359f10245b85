#include "tests/driver/Legible.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

namespace {

constexpr int circleWidth = 18;  // of a check box or an option button, with the room beside it
constexpr int captionLeft = 10;  // of a group box
constexpr int captionHeight = 14;

std::vector<std::uint32_t> PixelsOf(const RECT& screen) {
    const int width = screen.right - screen.left;
    const int height = screen.bottom - screen.top;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height);
    const HDC display = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(display);
    const HBITMAP copy = ::CreateCompatibleBitmap(display, width, height);
    const HGDIOBJ previous = ::SelectObject(memory, copy);
    ::BitBlt(memory, 0, 0, width, height, display, screen.left, screen.top, SRCCOPY);
    ::SelectObject(memory, previous);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    ::GetDIBits(memory, copy, 0, height, pixels.data(), &info, DIB_RGB_COLORS);
    ::DeleteObject(copy);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, display);
    return pixels;
}

Color ColorIn(std::uint32_t pixel) {
    return ColorOf(static_cast<int>(pixel >> 16 & 255), static_cast<int>(pixel >> 8 & 255),
                   static_cast<int>(pixel & 255));
}

double Luminance(const Color& color) {
    const auto linear = [](int channel) {
        const double part = channel / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

RECT Inside(HWND window, int border) {
    RECT area{};
    ::GetWindowRect(window, &area);
    ::InflateRect(&area, -border, -border);
    return area;
}

/// An area of the control, which may still move with its window.
void ExpectToBe(double least, HWND control, RECT area, const std::string& what) {
    Look look = {};
    RECT before = Inside(control, 0);
    EXPECT_TRUE(Eventually([&] {
        const RECT now = Inside(control, 0);
        ::OffsetRect(&area, now.left - before.left, now.top - before.top);
        before = now;
        look = LookAt(area);
        return look.contrast >= least;
    })) << what
        << ": " << look.contrast;
}

void ExpectButton(HWND button, double least) {
    const LONG kind = ::GetWindowLongA(button, GWL_STYLE) & BS_TYPEMASK;
    RECT area = Inside(button, 4);
    if (kind == BS_GROUPBOX) {
        // Only the caption, not the line beside it or what stands in the box.
        area.left += captionLeft;
        area.right = area.left + captionHeight;
        area.bottom = area.top + captionHeight / 2;
    } else if (kind != BS_PUSHBUTTON && kind != BS_DEFPUSHBUTTON) {
        RECT circle = Inside(button, 0);
        circle.right = std::min(circle.right, circle.left + circleWidth);
        ExpectToBe(visible, button, circle, TextOf(button) + ", its circle");
        area.left = circle.right;
        if (area.left >= area.right) return;
    }
    ExpectToBe(least, button, area, TextOf(button));
}

void ExpectRows(HWND list, double least) {
    RECT row = Inside(list, 3);
    const auto height = static_cast<LONG>(::SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
    const auto count = static_cast<int>(::SendMessageA(list, LB_GETCOUNT, 0, 0));
    for (int index = 0; index < count && row.top + height < Inside(list, 0).bottom; ++index) {
        row.bottom = row.top + height - 2;
        ExpectToBe(least, list, row, "row " + std::to_string(index));
        row.top += height;
    }
}

BOOL CALLBACK ExpectControl(HWND control, LPARAM) {
    const std::string kind = ClassOf(control);
    const double least = ::IsWindowEnabled(control) ? legible : visible;
    if (!::IsWindowVisible(control)) return TRUE;
    if (kind == "Button") {
        ExpectButton(control, least);
    } else if (kind == "ListBox") {
        ExpectRows(control, least);
    } else if (kind == "ScrollBar") {
        ExpectToBe(visible, control, Inside(control, 0), "a slider");
    } else if ((kind == "Static" || kind == "Edit" || kind == "LinkLabel") && !TextOf(control).empty()) {
        ExpectToBe(least, control, Inside(control, kind == "Edit" ? 3 : 0), TextOf(control));
    }
    return TRUE;
}

}  // namespace

Look LookAt(const RECT& screen) {
    std::map<std::uint32_t, int> counts;
    for (const std::uint32_t pixel : PixelsOf(screen)) ++counts[pixel & 0xFFFFFF];
    const auto most = std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
    Look look = {ColorIn(most->first), 1};
    for (const auto& [pixel, count] : counts)
        look.contrast = std::max(look.contrast, Contrast(look.ground, ColorIn(pixel)));
    return look;
}

double Contrast(const Color& one, const Color& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

void ExpectLegible(HWND window) { ::EnumChildWindows(window, ExpectControl, 0); }
