#include "randomuser/model/WindowSet.h"

namespace {

constexpr int javaScript = 2;
constexpr int contrast = 3;

}  // namespace

std::optional<Color> WindowSet::swatchColor(int picker, int index) const {
    if (picker == 0) return WebsafeColor(index);
    if (picker == 1) return FailsafeColor(index);
    return isSortedByHue ? facts.colorByHue(index) : facts.javaScriptColor(index);
}

void WindowSet::tell(Look& look) const {
    look.isRunning = isMainOpen;
    look.exitCode = exitCode;
    look.front = front;
    look.pickers = pickers;
    look.isOnTop = isMainOnTop;
}

void WindowSet::end(int code) {
    isMainOpen = false;
    exitCode = code;
}

void WindowSet::comeToMain() {
    if (front != Front::main) clipboard.restartCountdown();
    front = Front::main;
}

void WindowSet::openPicker(int picker, bool isByHue) {
    if (picker == javaScript && !pickers.at(picker)) isSortedByHue = isByHue;
    pickers.at(picker) = true;
    comeToPicker(picker);
}

void WindowSet::sort(bool isByHue) {
    isSortedByHue = isByHue;
    comeToPicker(javaScript);
}

/// A new window begins beside the first mark's own cell.
void WindowSet::openContrast() {
    if (!pickers.at(contrast)) framed = 1;
    pickers.at(contrast) = true;
    comeToPicker(contrast);
}

void WindowSet::pressCell(int cell) {
    framed = cell;
    comeToPicker(contrast);
}
