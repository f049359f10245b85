#include "randomuser/PickHands.h"

#include "randomuser/model/Pick.h"
#include "resources/resource.h"
#include "tests/driver/Input.h"
#include "tests/driver/Pixel.h"

POINT PickHands::placeOf(const Action& pick) const {
    return pick.which < 6 ? CenterOf(eyes.control(IDC_picSample + pick.which)) : eyes.barStep(pick.value);
}

void PickHands::drag(const Action& pick, const Look& before) {
    const POINT place = placeOf(pick);
    begin(before);
    awaitColor(place, PickTarget(before.marks, before.selected, pick));
    ReleaseButton(place);
    awaitEnd();
}

void PickHands::pickByKeys(const Action& pick, const Look& before) {
    Press(VK_F6);
    ++movements;  // it reads as a movement does
    awaitPreview();
    awaitColor(placeOf(pick), PickTarget(before.marks, before.selected, pick));
    Press(VK_RETURN);
    awaitEnd();
}

void PickHands::dragInVain(const Action& pick, const Look& before) {
    const POINT place = placeOf(pick);
    begin(before);
    awaitColor(place, PickTarget(before.marks, before.selected, pick));
    Press(VK_ESCAPE);
    awaitEnd();
    ReleaseButton(place);
}

void PickHands::begin(const Look& before) {
    const POINT sample = CenterOf(eyes.control(IDC_picSample + before.selected));
    reach.uncover(eyes.main(), sample);
    PressButton(sample);
    awaitPreview();
}

void PickHands::awaitPreview() {
    const HWND preview = eyes.control(IDC_picPick);
    reach.await("a preview of the pick", [&] { return ::IsWindowVisible(preview) != FALSE; });
}

void PickHands::awaitEnd() {
    const HWND preview = eyes.control(IDC_picPick);
    reach.await("the end of a pick", [&] { return ::IsWindowVisible(preview) == FALSE; });
}

/// Moves, as a hand does, until the preview has followed.
void PickHands::awaitColor(POINT place, const Color& color) {
    const HWND preview = eyes.control(IDC_picPick);
    // To and fro: where the button was pressed there is no movement.
    LONG aside = 0;
    reach.await("the pick's colour", [&] {
        aside = 1 - aside;
        MoveMouse({place.x, place.y + aside});
        movements += 2;  // by way of the pixel beside it
        return Pixel(CenterOf(preview)) == color;
    });
}

void PickHands::clickRight(int selected) {
    const POINT place = CenterOf(eyes.control(IDC_picSample + selected));
    reach.uncover(eyes.main(), place);
    RightClick(place);
}
