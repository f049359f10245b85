#include "toolkit/PictureBox.h"

#include "toolkit/Painting.h"

void PictureBox::setBackColor(COLORREF color) {
    if (back == color) return;
    back = color;
    ::InvalidateRect(handle(), nullptr, FALSE);
}

LRESULT PictureBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: {
            const Painting painting(handle());
            FillWithColor(painting.context(), painting.area(), back);
            return 0;
        }
        default: return Control::onMessage(message, wParam, lParam);
    }
}
