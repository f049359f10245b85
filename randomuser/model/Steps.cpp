#include "randomuser/model/Steps.h"

#include <algorithm>

namespace {

/// One that changes a mark more than once, with any time in between.
bool HasManyChanges(const Action& action) {
    if (action.kind == Kind::sliderKeys) return action.value / 8 > 1;
    return action.kind == Kind::sliderDrag || action.kind == Kind::swatchKeys;
}

/// One that may change a mark and change it back.
bool MayComeBack(const Action& action) {
    return action.kind == Kind::typeName || action.kind == Kind::sliderDrag;
}

bool IsTyping(const Action& action) {
    return action.kind == Kind::typeName || action.kind == Kind::eraseName;
}

/// On its way to the text the box shows the name, as one that has been typed.
bool PassesBy(const std::string& text, const std::string& name) {
    return !name.empty() && text.starts_with(name);
}

bool IsNaming(const Action& action) { return action.kind == Kind::findNames || action.kind == Kind::answer; }

}  // namespace

void Steps::begin(const MarkSet::State& now) {
    places.assign(1, {now});
    present = 0;
    shown = now;
    end();
}

void Steps::note(const MarkSet::State& now, const Action& action) {
    if (now.selected != shown.selected) end();
    if (now.six != shown.six) {
        add(now, action);
    } else {
        places[present].state.highlighted = now.highlighted;
        if (MayComeBack(action)) places.resize(present + 1);
    }
    shown = now;
}

void Steps::add(const MarkSet::State& now, const Action& action) {
    constexpr std::size_t most = 100;
    const auto changed = std::ranges::mismatch(shown.six.names, now.six.names).in1;
    const Gesture of = IsTyping(action)   ? Gesture::name
                       : IsNaming(action) ? Gesture::command
                                          : Gesture::color;
    const std::size_t whose = IsTyping(action) ? changed - shown.six.names.begin() : now.selected;
    places.resize(present + 1);
    places[present].selectedOnLeaving = shown.selected;
    const bool goesOn = isOpen && of == gesture && whose == mark;
    if (goesOn) places[present].isSure = false;
    MarkSet::State& before = places[goesOn ? present - 1 : present].state;
    if (action.kind == Kind::typeName && PassesBy(action.text, before.six.names.at(whose)))
        before.highlighted.at(whose) = false;
    if (HasManyChanges(action)) places.push_back({.state = shown, .isSure = false});
    places.push_back({now});
    if (places.size() > most) places.erase(places.begin(), places.end() - most);
    present = places.size() - 1;
    gesture = of;
    mark = whose;
    isOpen = of != Gesture::command;
}

MarkSet::State Steps::undo() { return goTo(present - 1, places[present - 1].selectedOnLeaving); }

MarkSet::State Steps::redo() { return goTo(present + 1, places[present + 1].state.selected); }

MarkSet::State Steps::goTo(std::size_t place, int selected) {
    end();
    present = place;
    shown = places[present].state;
    shown.selected = selected;
    return shown;
}
