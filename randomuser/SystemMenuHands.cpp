#include "randomuser/SystemMenuHands.h"

#include "randomuser/Screen.h"
#include "resources/resource.h"
#include "tests/driver/Input.h"

namespace {

/// The menu that is open, or nullptr.
HWND OpenMenu() {
    const HWND menu = ::FindWindowA("#32768", nullptr);
    return menu && ::IsWindowVisible(menu) ? menu : nullptr;
}

/// What the last item of a menu shows where its check mark stands. Other programs see of a menu only pixels.
enum class CheckMark { unpainted, absent, present };

CheckMark LastCheckMark(HWND menu) {
    constexpr int border = 4;
    const RECT area = AreaOf(menu, border);
    const int height = ::GetSystemMetrics(SM_CYMENUCHECK);
    const int width = ::GetSystemMetrics(SM_CXMENUCHECK);
    const ScreenPart row({area.left, area.bottom - height}, area.right - area.left, height);
    const Color ground = Unpack(static_cast<PackedColor>(::GetSysColor(COLOR_MENU)));
    if (row.at({area.right - 1, area.bottom - 1}) != ground) return CheckMark::unpainted;
    for (LONG y = area.bottom - height; y < area.bottom; ++y) {
        for (LONG x = area.left; x < area.left + width; ++x) {
            if (row.at({x, y}) != ground) return CheckMark::present;
        }
    }
    return CheckMark::absent;
}

}  // namespace

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
