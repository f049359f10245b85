#include "toolkit/controls/IconBox.h"

#include <algorithm>
#include <bit>

#include "toolkit/platform/Contexts.h"
#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Painting.h"

namespace {

constexpr unsigned smallestDrawing = 64;
constexpr unsigned largestDrawing = 256;

int DrawingFor(int size) {
    return static_cast<int>(
        std::clamp(std::bit_ceil(static_cast<unsigned>(size)), smallestDrawing, largestDrawing));
}

/// A drawing on the form's background, in memory.
class Drawn {
public:
    Drawn(HDC like, int icon, int size)
        : context(::CreateCompatibleDC(like)),
          bitmap(::CreateCompatibleBitmap(like, size, size)),
          selected(context.get(), bitmap.get()) {
        const OwnedIcon drawing(static_cast<HICON>(::LoadImageW(
            ::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(icon), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
        const RECT all = {0, 0, size, size};
        FillWithColor(context.get(), all, ::GetSysColor(COLOR_BTNFACE));
        ::DrawIconEx(context.get(), 0, 0, drawing.get(), size, size, 0, nullptr, DI_NORMAL);
    }

    HDC get() const { return context.get(); }

private:
    Owned<HDC, &::DeleteDC> context;
    Owned<HBITMAP, &::DeleteObject> bitmap;
    Selected selected;  // ends first: a selected bitmap cannot be deleted
};

}  // namespace

LRESULT IconBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: paint(); return 0;
        default: return Control::onMessage(message, wParam, lParam);
    }
}

void IconBox::paint() const {
    const Painting painting(handle());
    RECT area{};
    ::GetClientRect(handle(), &area);
    const int drawing = DrawingFor(area.right);
    const Drawn drawn(painting.context(), icon, drawing);
    // Each pixel becomes the mean of those it replaces.
    ::SetStretchBltMode(painting.context(), HALFTONE);
    ::SetBrushOrgEx(painting.context(), 0, 0, nullptr);
    ::StretchBlt(painting.context(), 0, 0, area.right, area.bottom, drawn.get(), 0, 0, drawing, drawing,
                 SRCCOPY);
}
