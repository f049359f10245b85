#include "toolkit/controls/MiddleLine.h"

#include "toolkit/platform/Contexts.h"
#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Painting.h"

namespace {

LONG LineHeight(HWND box) {
    // In memory: for a context of the screen Wine asks its server, once for every box at the start.
    const Owned<HDC, &::DeleteDC> memory(::CreateCompatibleDC(nullptr));
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(box, WM_GETFONT, 0, 0));
    const Selected selected(memory.get(), font);
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(memory.get(), &metrics);
    return metrics.tmHeight;
}

/// The whole window, from the left and top of its client area.
RECT WholeOf(HWND box) {
    RECT whole{};
    ::GetWindowRect(box, &whole);
    ::MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&whole), 2);
    return whole;
}

/// From the left and top of the client area.
RECT InsideOfEdge(HWND box) {
    RECT area = WholeOf(box);
    const LONG edge = -area.left;  // as wide above and below
    ::InflateRect(&area, -edge, -edge);
    return area;
}

}  // namespace

void KeepMiddleLine(HWND box, RECT& client) {
    const LONG line = LineHeight(box);
    const LONG spare = client.bottom - client.top - line;
    if (spare <= 0) return;
    client.top += spare / 2;
    client.bottom = client.top + line;
}

bool IsInsideOfEdge(HWND box, POINT screen) {
    ::ScreenToClient(box, &screen);
    const RECT inside = InsideOfEdge(box);
    return ::PtInRect(&inside, screen) != FALSE;
}

void PaintAroundLine(HWND box, COLORREF ground) {
    RECT line{};
    ::GetClientRect(box, &line);
    const RECT whole = WholeOf(box);
    const FrameContext context(box);
    ::SetWindowOrgEx(context.get(), whole.left, whole.top, nullptr);
    ::ExcludeClipRect(context.get(), line.left, line.top, line.right, line.bottom);
    FillWithColor(context.get(), InsideOfEdge(box), ground);
}
