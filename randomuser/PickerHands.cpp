#include "randomuser/PickerHands.h"

#include <array>

#include "resources/resource.h"
#include "tests/driver/ContrastWindow.h"
#include "tests/driver/Input.h"
#include "tests/driver/PickerWindow.h"

namespace {

constexpr int contrastWindow = 3;
constexpr std::array grids = {websafeGrid, failsafeGrid, javaScriptGrid};

Swatch PlaceOf(int picker, int index) {
    if (picker == 0) return {index / 6 % 6 * 6 + index / 36, 5 - index % 6};
    const int columns = grids.at(picker).columns;
    return {index % columns, index / columns};
}

}  // namespace

void PickerHands::open(int picker) {
    constexpr std::array<POINT, 3> places = {{{0, 620}, {0, 850}, {900, 100}}};
    const bool isNew = eyes.picker(picker) == nullptr;
    reach.clickOn(grids.at(picker).button);
    if (isNew) placeNew(picker, places.at(picker));
}

/// Puts a new window where no other of the program's lies over it.
void PickerHands::placeNew(int picker, POINT place) const {
    reach.awaitInFront([&] { return eyes.picker(picker); });
    // It goes to a place of its own when it is told that it has been activated.
    reach.awaitRest(eyes.picker(picker));
    if (reach.isAll()) Reach::moveTo(eyes.picker(picker), place);
}

/// The middle of the swatch, which nothing lies over any more.
POINT PickerHands::swatchPlace(int picker, int index) const {
    const PickerWindow::Grid& grid = grids.at(picker);
    const HWND swatches = ::GetDlgItem(eyes.picker(picker), grid.swatches);
    const Swatch swatch = PlaceOf(picker, index);
    RECT area{};
    ::GetClientRect(swatches, &area);
    const POINT place = OnScreen(swatches, {(2 * swatch.column + 1) * area.right / (2 * grid.columns),
                                            (2 * swatch.row + 1) * area.bottom / (2 * grid.rows)});
    reach.uncover(eyes.picker(picker), place);
    return place;
}

void PickerHands::clickSwatch(int picker, int index) { Click(swatchPlace(picker, index)); }

void PickerHands::rightClickSwatch(int picker, int index) { RightClick(swatchPlace(picker, index)); }

void PickerHands::pressSwatchBeside(int picker, int index) {
    clickSwatch(picker, index);
    Press(VK_RIGHT);
    Press(VK_SPACE);
}

void PickerHands::sort(bool isByHue) {
    constexpr int javaScript = 2;
    const HWND window = eyes.picker(javaScript);
    const HWND bar = ::GetDlgItem(window, IDC_tbrSortTools);
    const POINT place = huevox.toolButton(bar, isByHue ? IDM_DotNet : IDM_Alphabetically);
    reach.uncover(window, place);
    Click(place);
}

void PickerHands::placeContrast(bool wasOpen) {
    if (wasOpen) return reach.awaitInFront([&] { return eyes.windowOf(Front::contrast); });
    placeNew(contrastWindow, {516, 766});
}

void PickerHands::clickCell(int cell, bool isLeft) {
    const HWND window = eyes.picker(contrastWindow);
    const POINT place = MiddleOfCell(window, cell / 6, cell % 6);
    reach.uncover(window, place);
    isLeft ? Click(place) : RightClick(place);
}

void PickerHands::close(int picker) {
    ::PostMessageA(eyes.picker(picker), WM_CLOSE, 0, 0);
    reach.await("the end of a palette window", [&] { return eyes.picker(picker) == nullptr; });
    reach.bring(Front::main);
}
