#include "toolkit/forms/FormLayout.h"

#include "toolkit/platform/Fonts.h"
#include "toolkit/platform/WindowPlace.h"

void FormLayout::begin(const DialogTemplate& layout, int dpi) {
    style = {layout.style, layout.exStyle, !layout.menu.empty()};
    scaling = dpi;
    width = layout.width;
    height = layout.height;
    controls.clear();
}

void FormLayout::attach(HWND form) {
    window = form;
    scaling = static_cast<int>(::GetDpiForWindow(form));
}

SIZE FormLayout::frameSize(int dpi) const {
    return FrameSize(style, fromUnits(width, dpi), fromUnits(height, dpi), dpi);
}

HWND FormLayout::create(HWND parent, const TemplateItem& item) {
    const Area units = {item.x, item.y, item.x + item.width, item.y + item.height};
    const HWND created = CreateFormControl(parent, item, placeOf(units, parent), MessageFont(scaling));
    if (created) controls.push_back({created, units});
    return created;
}

void FormLayout::rescale(int dpi, const POINT& corner) {
    scaling = dpi;
    const SIZE frame = frameSize();
    PlaceAt(window, {corner.x, corner.y, corner.x + frame.cx, corner.y + frame.cy});
    fit();  // Wine does not scale the frame of a window that is on the screen
    for (const Placed& control : controls) {
        const RECT place = placeOf(control.units, ::GetParent(control.window));
        ::SetWindowPos(control.window, nullptr, place.left, place.top, place.right - place.left,
                       place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
        ::SendMessageW(control.window, WM_SETFONT, reinterpret_cast<WPARAM>(MessageFont(dpi)), TRUE);
    }
}

void FormLayout::fit() const {
    RECT client{};
    ::GetClientRect(window, &client);
    const int missingWidth = fromUnits(width, scaling) - client.right;
    const int missingHeight = fromUnits(height, scaling) - client.bottom;
    if (::IsIconic(window) || (missingWidth == 0 && missingHeight == 0)) return;
    Area frame = PlaceOf(window);
    frame.right += missingWidth;
    frame.bottom += missingHeight;
    PlaceAt(window, frame);
}

RECT FormLayout::placeOf(const Area& units, HWND parent) const {
    RECT place = {fromUnits(units.left, scaling), fromUnits(units.top, scaling),
                  fromUnits(units.right, scaling), fromUnits(units.bottom, scaling)};
    ::MapWindowPoints(window, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
}
