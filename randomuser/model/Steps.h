// What can be taken back, and what done again, as far as the model can know it?
#pragma once

#include <cstddef>
#include <vector>

#include "randomuser/model/Action.h"
#include "randomuser/model/MarkSet.h"

/// Whether the hand has rested between two changes, only time tells: such a place is unsure, and nobody goes
/// back to it.
class Steps {
public:
    /// Another palette is shown.
    void begin(const MarkSet::State& now);
    /// What an action has made of the marks.
    void note(const MarkSet::State& now, const Action& action);
    /// What follows is surely another step.
    void end() { isOpen = false; }

    bool areNone() const { return places.size() == 1; }
    bool canUndo() const { return present > 0 && places[present - 1].isSure; }
    bool canRedo() const { return present + 1 < places.size(); }
    MarkSet::State undo();
    MarkSet::State redo();

private:
    /// What changes, and of which mark: two changes in a row of one of these may be one step.
    enum class Gesture { color, name, command };

    struct Place {
        MarkSet::State state;
        int selectedOnLeaving = 0;
        bool isSure = true;
    };

    void add(const MarkSet::State& now, const Action& action);
    MarkSet::State goTo(std::size_t place, int selected);

    std::vector<Place> places = std::vector<Place>(1);
    std::size_t present = 0;
    MarkSet::State shown;
    Gesture gesture = Gesture::command;
    std::size_t mark = 0;
    bool isOpen = false;
};
