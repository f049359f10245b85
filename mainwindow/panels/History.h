// What can be taken back, and what done again?
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "support/Marks.h"

/// All that a step brings back.
struct MarkState {
    Palette shown;
    std::array<bool, markCount> isHighlighted{};
    int selectedMark = 0;

    friend bool operator==(const MarkState&, const MarkState&) = default;
};

/// By what a mark changes.
enum class Gesture {
    none,
    color,   ///< of the selected mark, however it is chosen
    name,    ///< typing in one name box
    command  ///< names that a command writes, until something else happens
};

/// The states of the marks that steps lead to, from one to the next. A step is one gesture, which goes on
/// until it is ended or another begins.
class History {
public:
    static constexpr std::size_t mostSteps = 200;  ///< the oldest are forgotten

    History() { begin({}); }

    /// Nothing can be taken back.
    void begin(const MarkState& now);
    /// Only another colour or name is a step. Highlights and the selection are noted along with it.
    void note(const MarkState& now, Gesture gesture);
    /// The next change is a step of its own.
    void end() { running = {}; }
    Gesture runningGesture() const { return running.gesture; }

    bool canUndo() const { return present > 0; }
    bool canRedo() const { return present + 1 < entries.size(); }
    /// What the marks were before the last step; call it only if there is one.
    MarkState undo();
    /// What the marks were after the step that was taken back last; call it only if there is one.
    MarkState redo();

private:
    struct Entry {
        MarkState state;            ///< its selected mark is that of the step that led here
        int selectedOnLeaving = 0;  ///< when the next step began
    };
    struct Running {
        Gesture gesture = Gesture::none;
        int mark = 0;  ///< 0 for a command

        friend bool operator==(const Running&, const Running&) = default;
    };

    int markOf(const MarkState& now, Gesture gesture) const;
    void add(const MarkState& now);
    void goOn(const MarkState& now);
    void forgetUndone();
    MarkState goTo(std::size_t place, int selected);

    std::vector<Entry> entries;  ///< one more than there are steps
    std::size_t present = 0;
    int selectedMark = 0;  ///< as last noted
    Running running;
};
