#include "pickers/SwatchWindow.h"

#include <algorithm>
#include <vector>

#include "pickers/Beside.h"
#include "resources/resource.h"
#include "toolkit/platform/WindowPlace.h"

SwatchWindow::SwatchWindow(const char* name) : Form(name, 1) {
    Command.bind(this, &SwatchWindow::Form_Command);
    Activate.bind(this, &SwatchWindow::Form_Activate);
    Unload.bind(this, &SwatchWindow::Form_Unload);
}

void SwatchWindow::open(std::span<const HWND> neighbors) {
    others = neighbors;
    if (!isLoaded()) load();
    others = {};
    show(SW_SHOWNORMAL);
    ::SetForegroundWindow(handle());
}

void SwatchWindow::Form_Command(int command) {
    if (command == IDC_cmdCancel) unload();
}

/// A window manager may have put the new window elsewhere when it was shown.
void SwatchWindow::Form_Activate() {
    if (newPlace) MoveTo(handle(), *newPlace);
    newPlace.reset();
}

void SwatchWindow::Form_Unload() { lastPlace = PlaceOf(handle()); }

Area SwatchWindow::firstPlace(const SIZE& frame) {
    newPlace = choosePlace(frame.cx, frame.cy);
    return *newPlace;
}

Area SwatchWindow::choosePlace(int width, int height) const {
    // The monitor may be gone by now.
    if (lastPlace && IsReachable(*lastPlace))
        return {lastPlace->left, lastPlace->top, lastPlace->left + width, lastPlace->top + height};
    std::vector<Area> places(others.size());
    std::ranges::transform(others, places.begin(), PlaceOf);
    return Beside(places, width, height, WorkAreaAt(others.front()));
}
