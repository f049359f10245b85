#include "randomuser/model/Windows.h"

namespace {

constexpr int javaScript = 2;

}  // namespace

std::optional<Color> Windows::swatchColor(int picker, int index) const {
    if (picker == 0) return WebsafeColor(index);
    if (picker == 1) return FailsafeColor(index);
    return isSortedByHue ? facts.colorByHue(index) : facts.javaScriptColor(index);
}

void Windows::tell(Look& look) const {
    look.isRunning = isMainOpen;
    look.exitCode = exitCode;
    look.front = front;
    look.pickers = pickers;
}

void Windows::end(int code) {
    isMainOpen = false;
    exitCode = code;
}

void Windows::comeToMain() {
    if (front != Front::main) clipboard.restartCountdown();
    front = Front::main;
}

void Windows::openPicker(int picker, bool isByHue) {
    if (picker == javaScript && !pickers.at(picker)) isSortedByHue = isByHue;
    pickers.at(picker) = true;
    comeToPicker(picker);
}

void Windows::sort(bool isByHue) {
    isSortedByHue = isByHue;
    comeToPicker(javaScript);
}
