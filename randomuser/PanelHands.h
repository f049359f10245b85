// How are the controls of the main window used?
#pragma once

#include <string>

#include "randomuser/Reach.h"
#include "tests/driver/Huevox.h"

class PanelHands {
public:
    PanelHands(const Huevox& huevox, Eyes& eyes, Reach& reach) : huevox(huevox), eyes(eyes), reach(reach) {}

    /// keys: as the value of Kind::sliderKeys.
    void pressSliderKeys(int slider, int keys);
    void clickArrow(int slider, bool isRight);
    void dragSlider(int slider, int to);
    void clickBar(int step) { reach.clickAt(eyes.barStep(step)); }
    /// From one end of the bar so many steps to the other.
    void pressBarKeys(int selected, bool isFromLeft, int steps);
    void retype(int id, const std::string& text);
    void pressIn(int id, WORD key);
    void eraseIn(int id);
    void pressMarkKeys(int selected, int steps);
    void clickNotation(int row);
    void pressNotationKeys(int steps);
    void tab(int times);

private:
    void awaitEnd(HWND bar, POINT end, int value);

    const Huevox& huevox;
    Eyes& eyes;
    Reach& reach;
};
