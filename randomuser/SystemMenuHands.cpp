#include "randomuser/SystemMenuHands.h"

#include "resources/resource.h"
#include "tests/driver/OpenMenu.h"

void SystemMenuHands::switchOnTop(bool isByKeys, bool wasOnTop) {
    if (isByKeys) return choose(wasOnTop);
    reach.waitForInput();
    ::PostMessageA(eyes.main(), WM_SYSCOMMAND, IDM_mnuSystemOnTop, 0);
}

void SystemMenuHands::choose(bool wasOnTop) {
    Press(VK_SPACE, {VK_MENU});
    reach.await("the window's own menu", [&] { return eyes.isInMenu() && OpenMenu() != nullptr; });
    const CheckMark expected = wasOnTop ? CheckMark::present : CheckMark::absent;
    reach.await(wasOnTop ? "a check mark" : "an item without a check mark",
                [&] { return LastCheckMark(OpenMenu()) == expected; });
    if (reach.isAll()) Press('T');
}
