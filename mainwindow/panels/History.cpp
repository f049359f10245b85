#include "mainwindow/panels/History.h"

#include <algorithm>

void History::begin(const MarkState& now) {
    entries.clear();
    entries.emplace_back().state = now;
    present = 0;
    selectedMark = now.selectedMark;
    end();
}

void History::note(const MarkState& now, Gesture gesture) {
    const bool isCommandOver = running.gesture == Gesture::command && gesture != Gesture::command;
    if (isCommandOver || now.selectedMark != selectedMark) end();
    if (now.shown == entries[present].state.shown) {
        entries[present].state.isHighlighted = now.isHighlighted;
    } else {
        const Running wanted = {gesture, markOf(now, gesture)};
        if (wanted == running) {
            goOn(now);
        } else {
            add(now);
            running = wanted;
        }
    }
    selectedMark = now.selectedMark;
}

int History::markOf(const MarkState& now, Gesture gesture) const {
    if (gesture == Gesture::color) return now.selectedMark;
    if (gesture != Gesture::name) return 0;
    const MarkNames& before = entries[present].state.shown.names;
    return static_cast<int>(std::ranges::mismatch(before, now.shown.names).in1 - before.begin());
}

void History::add(const MarkState& now) {
    forgetUndone();
    entries[present].selectedOnLeaving = selectedMark;
    entries.emplace_back().state = now;
    if (entries.size() > mostSteps + 1) entries.erase(entries.begin());
    present = entries.size() - 1;
}

/// A gesture that has come back to where it began is no step.
void History::goOn(const MarkState& now) {
    if (now.shown != entries[present - 1].state.shown) {
        entries[present].state = now;
        return;
    }
    --present;
    entries[present].state.isHighlighted = now.isHighlighted;
    // What the box itself has taken back can still be done again.
    if (running.gesture != Gesture::name) forgetUndone();
    end();
}

void History::forgetUndone() {
    while (canRedo()) entries.pop_back();
}

MarkState History::undo() { return goTo(present - 1, entries[present - 1].selectedOnLeaving); }

MarkState History::redo() { return goTo(present + 1, entries[present + 1].state.selectedMark); }

MarkState History::goTo(std::size_t place, int selected) {
    end();
    present = place;
    selectedMark = selected;
    MarkState state = entries[present].state;
    state.selectedMark = selected;
    return state;
}
