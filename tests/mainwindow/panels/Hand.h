// How does a test change marks that have a history?
#pragma once

#include <string>

#include "mainwindow/panels/History.h"

/// The marks of a window, changed as the program changes them, and their history.
class Hand {
public:
    Hand() { history.begin(now); }

    void color(int red) {
        now.shown.colors[now.selectedMark].red = red;
        history.note(now, Gesture::color);
    }
    void type(int mark, const std::string& name) {
        now.shown.names[mark] = name;
        now.isHighlighted[mark] = false;
        history.note(now, Gesture::name);
    }
    void command(int mark, const std::string& name) {
        now.shown.names[mark] = name;
        history.note(now, Gesture::command);
    }
    void select(int mark) {
        now.selectedMark = mark;
        history.note(now, Gesture::name);
    }
    void highlight(int mark, bool isHighlighted) {
        now.isHighlighted[mark] = isHighlighted;
        history.note(now, Gesture::color);
    }
    void rest() { history.end(); }
    void undo() { now = history.undo(); }
    void redo() { now = history.redo(); }
    /// How many steps can be taken back; takes them back.
    int undoAll() {
        int count = 0;
        for (; history.canUndo(); ++count) undo();
        return count;
    }

    MarkState now;
    History history;
};
