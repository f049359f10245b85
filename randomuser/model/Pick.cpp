#include "randomuser/model/Pick.h"

#include "randomuser/model/Facts.h"

Color PickTarget(const SixMarks& marks, int selected, const Action& pick) {
    return pick.which < 6 ? marks.colors.at(pick.which) : BarColor(marks.colors.at(selected), pick.value);
}

void Pick::drag(const Action& pick) {
    picked = PickTarget(marks.all(), marks.selectedMark(), pick);
    editing.setColor(picked);
}

void Pick::release() {
    if (isPickMode) editing.setColor(picked);
}
