#include "randomuser/Hands.h"

#include "randomuser/Ways.h"

std::string Hands::play(const Action& action, const Look& before) {
    reach.begin();
    // Keys and clicks that come before their window takes them go elsewhere.
    before.box.isOpen() ? reach.bringBox() : reach.bring(before.front);
    if (reach.isAll()) WayOf(action.kind).play({*this, action, before});
    return reach.complaint();
}
