#include "tests/driver/Legible.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

#include "tests/driver/Input.h"
#include "tests/driver/Pixel.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

namespace {

constexpr int circleWidth = 18;  // of a check box or an option button, with the room beside it
constexpr int captionLeft = 10;  // of a group box
constexpr int captionHeight = 14;

double Luminance(const Color& color) {
    const auto linear = [](int channel) {
        const double part = channel / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// An area of the control, which may still move with its window.
void ExpectToBe(double least, HWND control, RECT area, const std::string& what) {
    Look look = {};
    RECT before = AreaOf(control);
    EXPECT_TRUE(Eventually([&] {
        const RECT now = AreaOf(control);
        ::OffsetRect(&area, now.left - before.left, now.top - before.top);
        before = now;
        look = LookAt(area);
        return look.contrast >= least;
    })) << what
        << ": " << look.contrast;
}

void ExpectButton(HWND button, double least) {
    const LONG kind = ::GetWindowLongA(button, GWL_STYLE) & BS_TYPEMASK;
    RECT area = AreaOf(button, 4);
    if (kind == BS_GROUPBOX) {
        // Only the caption, not the line beside it or what stands in the box.
        area.left += captionLeft;
        area.right = area.left + captionHeight;
        area.bottom = area.top + captionHeight / 2;
    } else if (kind != BS_PUSHBUTTON && kind != BS_DEFPUSHBUTTON) {
        RECT circle = AreaOf(button);
        circle.right = std::min(circle.right, circle.left + circleWidth);
        ExpectToBe(visible, button, circle, TextOf(button) + ", its circle");
        area.left = circle.right;
        if (area.left >= area.right) return;
    }
    ExpectToBe(least, button, area, TextOf(button));
}

void ExpectRows(HWND list, double least) {
    RECT row = AreaOf(list, 3);
    const auto height = static_cast<LONG>(::SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
    const auto count = static_cast<int>(::SendMessageA(list, LB_GETCOUNT, 0, 0));
    for (int index = 0; index < count && row.top + height < AreaOf(list).bottom; ++index) {
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
        ExpectToBe(visible, control, AreaOf(control), "a slider");
    } else if ((kind == "Static" || kind == "Edit" || kind == "LinkLabel") && !TextOf(control).empty()) {
        ExpectToBe(least, control, AreaOf(control, kind == "Edit" ? 3 : 0), TextOf(control));
    }
    return TRUE;
}

}  // namespace

Look LookAt(const RECT& screen) {
    std::map<PackedColor, int> counts;
    for (const Color& pixel : PixelsOf(screen)) ++counts[Pack(pixel)];
    const auto most = std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
    Look look = {Unpack(most->first), 1};
    for (const auto& [pixel, count] : counts)
        look.contrast = std::max(look.contrast, Contrast(look.ground, Unpack(pixel)));
    return look;
}

bool BecomesLegible(const RECT& screen, double least) {
    return Eventually([&] { return LookAt(screen).contrast >= least; });
}

double Contrast(const Color& one, const Color& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

void ExpectLegible(HWND window) { ::EnumChildWindows(window, ExpectControl, 0); }
