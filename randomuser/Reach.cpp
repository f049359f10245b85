#include "randomuser/Reach.h"

#include "resources/resource.h"
#include "tests/driver/Input.h"

std::string Reach::complaint() const {
    return missing.empty() ? "" : missing + ": has not come (" + eyes.situation() + ')';
}

void Reach::bring(Front front) {
    bringWindow([&] { return eyes.windowOf(front); });
}

void Reach::bringBox() {
    bringWindow([&] { return eyes.box(); });
}

void Reach::bringWindow(const std::function<HWND()>& windowOf) {
    await("a window in front that takes keys", [&] {
        const HWND window = windowOf();
        if (Eyes::hasKeys(window)) return true;
        if (window && ::GetForegroundWindow() != window) ::SetForegroundWindow(window);
        return false;
    });
}

void Reach::awaitInFront(const std::function<HWND()>& windowOf) {
    await("a window that comes to the front itself", [&] { return Eyes::hasKeys(windowOf()); });
}

/// Another window may lie over the place; the one in front need not be the one on top. A tool tip goes when
/// the mouse comes over it, and none comes up below the mouse.
void Reach::uncover(HWND window, POINT place) {
    MoveMouse(place);
    awaitRest(eyes.main());
    const auto isOnTop = [&] { return ::GetAncestor(::WindowFromPoint(place), GA_ROOT) == window; };
    if (isOnTop()) return;
    bringWindow([window] { return window; });
    await("a place that nothing lies over", [&] {
        ::SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return isOnTop();
    });
}

void Reach::moveTo(HWND window, POINT place) {
    ::SetWindowPos(window, nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Reach::awaitRest(HWND window) {
    constexpr RECT corner = {0, 0, 1, 1};
    ::InvalidateRect(window, &corner, FALSE);
    await("a window that has painted", [window] { return !::GetUpdateRect(window, nullptr, FALSE); });
}

void Reach::clickAt(POINT place) {
    uncover(eyes.main(), place);
    Click(place);
}

void Reach::clickOn(int id) {
    const POINT middle = CenterOf(eyes.control(id));
    clickAt({middle.x + nextAside(), middle.y});
}

void Reach::clickInBox(HWND button) {
    const POINT place = CenterOf(button);
    uncover(::GetAncestor(button, GA_ROOT), place);
    Click(place);
}

/// Never twice at one place: a double click neither brings the focus to a box that has lost it meanwhile nor
/// chooses a row that keys have left.
LONG Reach::nextAside() {
    constexpr LONG aside = 3;
    isClickedLeft = !isClickedLeft;
    return isClickedLeft ? -aside : aside;
}

/// Keys go to the program that is in front when they are pressed.
void Reach::focusOn(int id) {
    clickOn(id);
    awaitFocus(eyes.control(id));
    bring(Front::main);
}

void Reach::focusByKey(WORD letter, int id) {
    Press(letter, {VK_MENU});
    awaitFocus(eyes.control(id));
}

void Reach::awaitFocus(HWND window) {
    await("the focus", [&] { return eyes.focus() == window; });
}

void Reach::waitForInput() {
    const bool isOnRed = eyes.focus() == eyes.control(IDC_hsbRed);
    isOnRed ? focusByKey('G', IDC_hsbGreen) : focusByKey('R', IDC_hsbRed);
}
