#include "randomuser/model/Editing.h"

#include <algorithm>

namespace {

Color WithChannel(Color color, int channel, int value) {
    int& changed = channel == 0 ? color.red : channel == 1 ? color.green : color.blue;
    changed = std::clamp(value, 0, 255);
    return color;
}

}  // namespace

void Editing::setColor(const Color& color) {
    if (color == marks.current()) return;
    marks.setCurrent(color);
    applyAgain();
    marks.highlight();
}

void Editing::applyAgain() {
    values.show(marks.current());
    clipboard.restartCountdown();
}

void Editing::moveSlider(int slider, int value) { setColor(WithChannel(marks.current(), slider, value)); }

void Editing::stepSlider(int slider, int steps) {
    moveSlider(slider, ChannelOf(marks.current(), slider) + steps);
}

void Editing::pressSliderKeys(int slider, int keys) {
    for (int times = keys / 8; times > 0; --times) pressSliderKey(slider, static_cast<SliderKey>(keys % 8));
}

void Editing::pressSliderKey(int slider, SliderKey key) {
    switch (key) {
        case SliderKey::left:
        case SliderKey::up:
        case SliderKey::pageUp: return stepSlider(slider, -1);
        case SliderKey::right:
        case SliderKey::down:
        case SliderKey::pageDown: return stepSlider(slider, 1);
        case SliderKey::home: return moveSlider(slider, 0);
        case SliderKey::end: return moveSlider(slider, 255);
    }
}

void Editing::select(int mark) {
    if (mark == marks.selectedMark()) return;
    marks.select(mark);
    applyAgain();
}

/// To the right, or to the left; past the last mark comes the first.
void Editing::selectBeside(int steps) { select(((marks.selectedMark() + steps) % 6 + 6) % 6); }

void Editing::applyValues() {
    const std::optional<Color> typed = values.typed();
    if (!typed) return box.show(Box::Kind::refusal, values.refusal());
    setColor(*typed);
    values.endTyping();
}

void Editing::pressSet() {
    if (values.canSet()) applyValues();
}

void Editing::setMode(bool wantsDecimal) {
    if (!values.setMode(wantsDecimal)) return;
    applyAgain();
    marks.highlight();
}

void Editing::paste() {
    if (copied) setColor(*copied);
}
