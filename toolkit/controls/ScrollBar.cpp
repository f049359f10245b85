#include "toolkit/controls/ScrollBar.h"

#include <algorithm>
#include <utility>

void ScrollBar::attached() { ::SetScrollRange(handle(), SB_CTL, minimum, maximum, FALSE); }

void ScrollBar::setValue(int value) {
    if (moveTo(value)) Change.raise();
}

/// While the user drags the thumb, Windows paints it under the pointer for every movement.
bool ScrollBar::isThumbHeld() const { return ::GetCapture() == handle(); }

bool ScrollBar::moveTo(int value, bool isPainted) {
    const int limited = std::clamp(value, minimum, maximum);
    if (!handle() || limited == current) return false;
    current = limited;
    // Before the form is shown there is nothing to paint.
    ::SetScrollPos(handle(), SB_CTL, current, isPainted && ::IsWindowVisible(handle()));
    return true;
}

void ScrollBar::onScroll(int code, int position) {
    switch (code) {
        case SB_LINELEFT:
        case SB_PAGELEFT: return setValue(current - 1);
        case SB_LINERIGHT:
        case SB_PAGERIGHT: return setValue(current + 1);
        case SB_LEFT: return setValue(minimum);
        case SB_RIGHT: return setValue(maximum);
        case SB_THUMBTRACK: return dragTo(position);
        case SB_THUMBPOSITION: return dropAt(position);
        default: return;
    }
}

void ScrollBar::dragTo(int position) {
    if (!moveTo(position, !isThumbHeld())) return;
    isDragged = true;
    Scroll.raise();
}

/// A drag has raised Scroll for every value on its way; Change is raised at its end.
void ScrollBar::dropAt(int position) {
    const bool hasMoved = moveTo(position);
    if (std::exchange(isDragged, false) || hasMoved) Change.raise();
}
