// How is a colour picked from the screen?
#pragma once

#include "randomuser/Reach.h"
#include "randomuser/model/Action.h"

class PickHands {
public:
    PickHands(Eyes& eyes, Reach& reach) : eyes(eyes), reach(reach) {}

    /// Movements while picking: each may cost a context of the screen.
    int movementCount() const { return movements; }

    void drag(const Action& pick, const Look& before);
    void clickRight(int selected);
    void pickByKeys(const Action& pick, const Look& before);
    void dragInVain(const Action& pick, const Look& before);

private:
    POINT placeOf(const Action& pick) const;
    void begin(const Look& before);
    void awaitPreview();
    void awaitEnd();
    void awaitColor(POINT place, const Color& color);

    Eyes& eyes;
    Reach& reach;
    int movements = 0;
};
