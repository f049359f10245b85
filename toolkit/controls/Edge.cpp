#include "toolkit/controls/Edge.h"

void Edge::surround() const {
    RECT place{};
    ::GetWindowRect(inside.handle(), &place);
    ::MapWindowPoints(nullptr, ::GetParent(handle()), reinterpret_cast<POINT*>(&place), 2);
    ::InflateRect(&place, 1, 1);
    ::SetWindowPos(handle(), nullptr, place.left, place.top, place.right - place.left,
                   place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}
