// Any commands leave the history as a plain list of steps has it.
#include <array>
#include <deque>
#include <string>

#include "fuzz/FuzzInput.h"
#include "mainwindow/panels/History.h"

namespace {

/// A step with all that was seen before and after it.
struct Step {
    MarkState before;
    MarkState after;
    Gesture gesture;
    int mark;
};

/// The history told once more: whole steps, and how many of them have been made.
struct PlainList {
    std::deque<Step> steps;
    std::size_t made = 0;
    bool isOpen = false;  ///< the step that was made last goes on

    bool goesOn(Gesture gesture, int mark) const {
        return isOpen && steps[made - 1].gesture == gesture && steps[made - 1].mark == mark;
    }
    /// The marks have changed from before to after.
    void change(const MarkState& before, const MarkState& after, Gesture gesture, int mark) {
        if (goesOn(gesture, mark)) return goOn(after);
        steps.resize(made);
        steps.push_back({before, after, gesture, mark});
        if (steps.size() > History::mostSteps) steps.pop_front();
        made = steps.size();
        isOpen = true;
    }
    void goOn(const MarkState& after) {
        Step& step = steps[made - 1];
        if (after.shown != step.before.shown) {
            step.after = after;
            return;
        }
        isOpen = false;
        --made;
        if (step.gesture != Gesture::name) steps.resize(made);
        follow(after);
    }
    /// Highlights are those of the place between two steps.
    void follow(const MarkState& now) {
        if (made > 0) steps[made - 1].after.isHighlighted = now.isHighlighted;
        if (made < steps.size()) steps[made].before.isHighlighted = now.isHighlighted;
    }
};

/// A user who reads from each byte what to do, to which mark, and with what.
class User {
public:
    explicit User(FuzzInput& input) : input(input) { history.begin(now); }

    void act() {
        const int byte = input.takeByte();
        const int mark = (byte >> 3) % 8 % markCount;
        const int value = byte >> 6;
        switch (byte % 8) {
            case 0: return color(value);
            case 1: return name(Gesture::name, mark, value);
            case 2: return name(Gesture::command, mark, value);
            case 3: return select(mark);
            case 4: return highlight(mark);
            case 5: return rest();
            case 6: return undo();
            default: return redo();
        }
    }
    void compare() const {
        Require(history.canUndo() == (list.made > 0));
        Require(history.canRedo() == (list.made < list.steps.size()));
    }

private:
    void color(int red) {
        MarkState next = now;
        next.shown.colors[now.selectedMark].red = red;
        note(next, Gesture::color, now.selectedMark);
    }
    void name(Gesture gesture, int mark, int length) {
        MarkState next = now;
        next.shown.names[mark] = std::string(length, 'x');
        note(next, gesture, gesture == Gesture::name ? mark : 0);
    }
    void select(int mark) {
        MarkState next = now;
        next.selectedMark = mark;
        note(next, Gesture::name, mark);
    }
    void highlight(int mark) {
        MarkState next = now;
        next.isHighlighted[mark] = !next.isHighlighted[mark];
        note(next, Gesture::color, mark);
    }
    void rest() {
        history.end();
        list.isOpen = false;
    }
    void note(const MarkState& next, Gesture gesture, int mark) {
        const bool isCommandOver = gesture != Gesture::command && list.made > 0 &&
                                   list.steps[list.made - 1].gesture == Gesture::command;
        if (isCommandOver || next.selectedMark != now.selectedMark) list.isOpen = false;
        if (next.shown == now.shown) {
            list.follow(next);
        } else {
            list.change(now, next, gesture, mark);
        }
        history.note(next, gesture);
        now = next;
    }
    void undo() {
        if (list.made == 0) return;
        list.isOpen = false;
        now = list.steps[--list.made].before;
        Require(history.undo() == now);
    }
    void redo() {
        if (list.made == list.steps.size()) return;
        list.isOpen = false;
        now = list.steps[list.made++].after;
        Require(history.redo() == now);
    }

    FuzzInput& input;
    MarkState now;
    History history;
    PlainList list;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    User user(input);
    while (!input.takeRest().empty()) {
        user.act();
        user.compare();
    }
    return 0;
}
