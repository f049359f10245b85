// How are the palette windows used?
#pragma once

#include "randomuser/Reach.h"
#include "tests/driver/Huevox.h"

class PickerHands {
public:
    PickerHands(const Huevox& huevox, Eyes& eyes, Reach& reach) : huevox(huevox), eyes(eyes), reach(reach) {}

    void open(int picker);
    void clickSwatch(int picker, int index);
    void rightClickSwatch(int picker, int index);
    /// A click on the swatch, then the keys for the one to the right.
    void pressSwatchBeside(int picker, int index);
    void sort(bool isByHue);
    void close(int picker);

    /// A new contrast window is moved to a place of its own.
    void placeContrast(bool wasOpen);
    void clickCell(int cell, bool isLeft);

private:
    void placeNew(int picker, POINT place) const;
    POINT swatchPlace(int picker, int index) const;

    const Huevox& huevox;
    Eyes& eyes;
    Reach& reach;
};
