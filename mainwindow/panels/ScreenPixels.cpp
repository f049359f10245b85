#include "mainwindow/panels/ScreenPixels.h"

#include <algorithm>
#include <array>
#include <span>

#include "mainwindow/panels/PixelBitmap.h"
#include "toolkit/platform/Contexts.h"

namespace {

constexpr int side = PixelBlock::side;

RECT AreaAround(POINT place) {
    const LONG left = place.x - PixelBlock::reach;
    const LONG top = place.y - PixelBlock::reach;
    return {left, top, left + side, top + side};
}

/// Without what lies beyond the edges of the desktop.
RECT OnDesktop(const RECT& area) {
    const LONG left = ::GetSystemMetrics(SM_XVIRTUALSCREEN);
    const LONG top = ::GetSystemMetrics(SM_YVIRTUALSCREEN);
    const RECT desktop = {left, top, left + ::GetSystemMetrics(SM_CXVIRTUALSCREEN),
                          top + ::GetSystemMetrics(SM_CYVIRTUALSCREEN)};
    RECT part{};
    ::IntersectRect(&part, &area, &desktop);
    return part;
}

/// What is on a monitor of the pixels around a place.
class OnMonitors {
public:
    explicit OnMonitors(POINT place) : area(AreaAround(place)) {
        ::EnumDisplayMonitors(nullptr, &area, add, reinterpret_cast<LPARAM>(this));
    }

    bool has(int index) const { return shown[index]; }

private:
    static BOOL CALLBACK add(HMONITOR /*monitor*/, HDC /*context*/, LPRECT part, LPARAM self) {
        reinterpret_cast<OnMonitors*>(self)->add(*part);
        return TRUE;
    }
    void add(const RECT& monitor) {
        RECT part{};
        if (!::IntersectRect(&part, &monitor, &area)) return;
        for (LONG y = part.top; y < part.bottom; ++y) {
            for (LONG x = part.left; x < part.right; ++x) shown[(y - area.top) * side + x - area.left] = true;
        }
    }

    RECT area;
    std::array<bool, PixelBlock::count> shown = {};
};

/// Asked first, because it is cheaper and nearly always the answer.
bool IsWithinOneMonitor(POINT place) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromPoint(place, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT around = AreaAround(place);
    RECT common{};
    ::IntersectRect(&common, &around, &monitor.rcMonitor);
    return ::EqualRect(&common, &around) != FALSE;
}

void LeaveOutWhatIsOnNoMonitor(POINT place, PixelBlock& block) {
    if (IsWithinOneMonitor(place)) return;
    const OnMonitors on(place);
    for (int index = 0; index < PixelBlock::count; ++index) {
        if (!on.has(index)) block.pixels[index] = nothingThere;
    }
    if (!on.has(PixelBlock::middleIndex)) block.pixels[PixelBlock::middleIndex] = unreadable;
}

}  // namespace

void ScreenPixels::renew() { contexts = std::min(contexts, mostContexts - 1); }

PixelBlock ScreenPixels::around(POINT place) {
    if (contexts < mostContexts) {
        newest = ::GetDC(nullptr);
        ++contexts;
    }
    PixelBlock block;
    if (!copy(place, block)) block.pixels.fill(unreadable);
    LeaveOutWhatIsOnNoMonitor(place, block);
    return block;
}

bool ScreenPixels::copy(POINT place, PixelBlock& block) {
    if (!bitmap && !makeBitmap()) return false;
    const RECT area = AreaAround(place);
    const RECT part = OnDesktop(area);  // a picture that goes beyond may come out black as a whole
    const Selected target(memory.get(), bitmap.get());
    if (!::BitBlt(memory.get(), part.left - area.left, part.top - area.top, part.right - part.left,
                  part.bottom - part.top, newest, part.left, part.top, SRCCOPY))
        return false;
    ::GdiFlush();  // before the bits are looked at
    std::ranges::transform(std::span(bits, block.pixels.size()), block.pixels.begin(),
                           [](BitmapPixel pixel) { return pixel & 0x00FFFFFF; });
    return true;
}

bool ScreenPixels::makeBitmap() {
    const BITMAPINFO info = PixelBitmap();
    void* made = nullptr;
    memory = Owned<HDC, &::DeleteDC>(::CreateCompatibleDC(nullptr));
    bitmap = Owned<HBITMAP, &::DeleteObject>(
        ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &made, nullptr, 0));
    bits = static_cast<const BitmapPixel*>(made);
    return memory && bitmap;
}
