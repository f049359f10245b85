#include "pickers/SwatchWindow.h"

#include <algorithm>
#include <vector>

#include "toolkit/Beside.h"
#include "toolkit/WindowPlace.h"

SwatchWindow::SwatchWindow(const char* name) : Form(name, 1) {
    Unload.bind(this, &SwatchWindow::Form_Unload);
}

void SwatchWindow::open(std::span<const HWND> others) {
    if (!isLoaded()) {
        load();
        place(others);
    }
    show(SW_SHOWNORMAL);
    ::SetForegroundWindow(handle());
}

void SwatchWindow::Form_Unload() { lastPlace = PlaceOf(handle()); }

void SwatchWindow::place(std::span<const HWND> others) const {
    // A monitor may have gone since.
    if (lastPlace && IsReachable(*lastPlace)) {
        MoveTo(handle(), *lastPlace);
        return;
    }
    std::vector<Area> places(others.size());
    std::ranges::transform(others, places.begin(), PlaceOf);
    const Area own = PlaceOf(handle());
    MoveTo(handle(), Beside(places, own.width(), own.height(), WorkAreaAt(others.front())));
}
