#include "pickers/SwatchWindow.h"

#include <algorithm>
#include <vector>

#include "toolkit/Beside.h"
#include "toolkit/WindowPlace.h"

SwatchWindow::SwatchWindow(const char* name) : Form(name, 1) {
    Activate.bind(this, &SwatchWindow::Form_Activate);
    Unload.bind(this, &SwatchWindow::Form_Unload);
}

void SwatchWindow::open(std::span<const HWND> others) {
    if (!isLoaded()) {
        load();
        newPlace = choosePlace(others);
        MoveTo(handle(), *newPlace);
    }
    show(SW_SHOWNORMAL);
    ::SetForegroundWindow(handle());
}

/// A window manager may have put the new window elsewhere on its way to the screen.
void SwatchWindow::Form_Activate() {
    if (newPlace) MoveTo(handle(), *newPlace);
    newPlace.reset();
}

void SwatchWindow::Form_Unload() { lastPlace = PlaceOf(handle()); }

Area SwatchWindow::choosePlace(std::span<const HWND> others) const {
    // A monitor may have gone since.
    if (lastPlace && IsReachable(*lastPlace)) return *lastPlace;
    std::vector<Area> places(others.size());
    std::ranges::transform(others, places.begin(), PlaceOf);
    const Area own = PlaceOf(handle());
    return Beside(places, own.width(), own.height(), WorkAreaAt(others.front()));
}
