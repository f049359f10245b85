#include "randomuser/model/Model.h"

#include <algorithm>
#include <cctype>

namespace {

Color WithChannel(Color color, int channel, int value) {
    int& changed = channel == 0 ? color.red : channel == 1 ? color.green : color.blue;
    changed = std::clamp(value, 0, 255);
    return color;
}

int ChannelOf(const Color& color, int channel) {
    return channel == 0 ? color.red : channel == 1 ? color.green : color.blue;
}

}  // namespace

void Model::play(const Action& action) {
    focus = 0;
    playOutside(action);
    playEditing(action);
    playKeys(action);
    playFiles(action);
    playDialogs(action);
}

void Model::playEditing(const Action& action) {
    switch (action.kind) {
        case Kind::sliderKeys:
            for (int times = action.value / 8; times > 0; --times)
                pressSliderKey(action.which, static_cast<SliderKey>(action.value % 8));
            break;
        case Kind::sliderArrow:
            moveSlider(action.which, ChannelOf(current(), action.which) + action.value);
            break;
        case Kind::sliderDrag: moveSlider(action.which, action.value); break;
        case Kind::barClick: setColor(BarColor(current(), action.value)); break;
        case Kind::selectMark: select(action.which); break;
        case Kind::markKeys: select(((selected + action.value) % 6 + 6) % 6); break;
        case Kind::typeValue: typeValue(action.which, action.text); break;
        case Kind::enterValue: applyValues(); break;
        case Kind::pressSet:
            if (isSetEnabled) applyValues();
            break;
        case Kind::setMode: setMode(action.value == 0); break;
        case Kind::typeName: typeName(action.which, action.text.substr(0, 21)); break;
        case Kind::eraseName: {
            const std::string& name = marks.names.at(action.which);
            typeName(action.which, name.substr(0, name.empty() ? 0 : name.size() - 1));
            break;
        }
        case Kind::copyColor: copied = current(); break;
        case Kind::pasteColor:
            if (copied) setColor(*copied);
            break;
        case Kind::findNames: findNames(); break;
        case Kind::notation: choose(action.value); break;
        case Kind::notationKeys: choose(std::clamp(notation + action.value, 0, 11)); break;
        case Kind::jsNames:
            areNamesCopied = !areNamesCopied;
            applyAgain();
            break;
        case Kind::pickMode: isPickMode = !isPickMode; break;
        case Kind::pickDrag:
            picked = pickTarget(action);
            setColor(picked);
            break;
        case Kind::pickRight:
            if (isPickMode) setColor(picked);
            break;
        case Kind::swatch: setColor(*swatchColor(action.which, action.value)); break;
        case Kind::sortOrder: isSortedByHue = action.value != 0; break;
        default: break;
    }
}

/// Which window is in front, and what other programs do.
void Model::playOutside(const Action& action) {
    const bool isInPicker = action.kind == Kind::swatch || action.kind == Kind::rightSwatch ||
                            action.kind == Kind::swatchKeys || action.kind == Kind::sortOrder;
    switch (action.kind) {
        case Kind::otherInFront: front = Front::other; return;
        case Kind::otherCopies:
            clip.state = ClipboardFact::State::known;
            clip.text = action.text;
            return;
        case Kind::otherHolds: clip.isHeld = true; return;
        case Kind::otherLetsGo:
            clip.isHeld = false;
            if (clip.state == ClipboardFact::State::due) clip.state = ClipboardFact::State::unknown;
            return;
        case Kind::settle:
            clip.state = ClipboardFact::State::known;
            clip.text = look().preview;
            refreshLetters();
            return;
        case Kind::vainClick: return;
        default: break;
    }
    if (isInPicker) {
        front = static_cast<Front>(action.kind == Kind::sortOrder ? 2 : action.which);
        return;
    }
    if (front != Front::main) restartCountdown();
    front = Front::main;
    if (action.kind == Kind::closePicker) pickers.at(action.which) = false;
    if (action.kind != Kind::openPicker) return;
    if (action.which == 2 && !pickers[2]) isSortedByHue = settings.sortIndex == 1;
    pickers.at(action.which) = true;
    front = static_cast<Front>(action.which);
}

void Model::setColor(const Color& color) {
    if (color == current()) return;
    marks.colors.at(selected) = color;
    letters.at(selected).insert(facts->lettersOf(color));
    applyAgain();
    highlight();
}

/// What is shown of the colour is written anew.
void Model::applyAgain() {
    for (int channel = 0; channel < 3; ++channel)
        values.at(channel) = ValueText(ChannelOf(current(), channel), isDecimal);
    isSetEnabled = false;
    restartCountdown();
}

void Model::restartCountdown() { clip.state = ClipboardFact::State::due; }

void Model::refreshLetters() {
    for (std::size_t mark = 0; mark < 6; ++mark) letters[mark] = {facts->lettersOf(marks.colors[mark])};
}

/// The user has changed the colour: the name may not fit any more.
void Model::highlight() {
    const std::string name = marks.names.at(selected);
    if (name == noName || highlighted.at(selected)) return;
    if (name != notJavaScript) highlighted.at(selected) = true;
    for (std::size_t mark = 0; mark < 6; ++mark) {
        if (marks.names[mark] != notJavaScript) continue;
        marks.names[mark] = noName;
        highlighted[mark] = false;
    }
}

void Model::moveSlider(int slider, int value) { setColor(WithChannel(current(), slider, value)); }

void Model::pressSliderKey(int slider, SliderKey key) {
    const int value = ChannelOf(current(), slider);
    switch (key) {
        case SliderKey::left:
        case SliderKey::up:
        case SliderKey::pageUp: return moveSlider(slider, value - 1);
        case SliderKey::right:
        case SliderKey::down:
        case SliderKey::pageDown: return moveSlider(slider, value + 1);
        case SliderKey::home: return moveSlider(slider, 0);
        case SliderKey::end: return moveSlider(slider, 255);
    }
}

void Model::select(int mark) {
    if (mark == selected) return;
    selected = mark;
    applyAgain();
}

void Model::typeValue(int channel, const std::string& text) {
    std::string& value = values.at(channel);
    if (text.empty() && value.empty()) return;
    value = text.substr(0, 3);
    for (char& character : value) character = static_cast<char>(std::toupper(character));
    isSetEnabled = true;
    isModeLocked = true;
}

void Model::applyValues() {
    std::array<std::optional<int>, 3> typed;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        typed[channel] = ValueOf(values[channel], isDecimal);
        if (typed[channel]) continue;
        return show(Box::refusal, isDecimal
                                      ? "The value is not allowed. Only values from 0 to 255 are allowed."
                                      : "The value is not allowed. Only values from 00 to FF are allowed.");
    }
    setColor(ColorOf(*typed[0], *typed[1], *typed[2]));
    isSetEnabled = false;
    isModeLocked = false;
}

void Model::setMode(bool wantsDecimal) {
    if (isModeLocked || wantsDecimal == isDecimal) return;
    isDecimal = wantsDecimal;
    applyAgain();
    highlight();
}

/// Typed, so nothing that was empty and stays so is a change.
void Model::typeName(int mark, const std::string& name) {
    if (name.empty() && marks.names.at(mark).empty()) return;
    marks.names.at(mark) = name == notJavaScript ? noName : name;
    highlighted.at(mark) = false;
}

void Model::findNames() {
    for (std::size_t mark = 0; mark < 6; ++mark) marks.names[mark] = facts->foundName(marks.colors[mark]);
    highlighted.fill(false);
}

void Model::choose(int row) {
    if (areNamesCopied) return;
    notation = row;
    applyAgain();
}

Color Model::pickTarget(const Action& action) const {
    return action.which < 6 ? marks.colors.at(action.which) : BarColor(current(), action.value);
}

std::optional<Color> Model::swatchColor(int window, int index) const {
    if (window == 0) return WebsafeColor(index);
    if (window == 1) return FailsafeColor(index);
    return isSortedByHue ? facts->colorByHue(index) : facts->javaScriptColor(index);
}
