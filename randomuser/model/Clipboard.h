// What must the text on the clipboard be?
#pragma once

#include <string>

struct ClipboardFact {
    enum class State { known, due, unknown } state = State::unknown;
    std::string text = {};
    bool isHeld = false;

    /// In the state that is wanted, and open to everybody.
    bool isFree(State wanted) const { return state == wanted && !isHeld; }
    /// The program copies half a second from now.
    void restartCountdown() { state = State::due; }
    void put(const std::string& copied) {
        state = State::known;
        text = copied;
    }
    /// Who has held it may have kept a copy away.
    void letGo() {
        isHeld = false;
        if (state == State::due) state = State::unknown;
    }
};
