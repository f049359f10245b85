// Does the program run, which of its windows are open, and which is in front?
#pragma once

#include <array>
#include <optional>

#include "randomuser/model/Clipboard.h"
#include "randomuser/model/Facts.h"
#include "randomuser/model/Look.h"

/// The main window, the three palette windows and that of the contrast, which counts as the fourth.
class WindowSet {
public:
    WindowSet(const Facts& facts, ClipboardFact& clipboard) : facts(facts), clipboard(clipboard) {}

    bool areOpen() const { return isMainOpen; }
    bool isInFront(Front window) const { return front == window; }
    bool isPickerOpen(int picker) const { return pickers.at(picker); }
    /// Nothing for a swatch whose colour nobody else tells.
    std::optional<Color> swatchColor(int picker, int index) const;
    void tell(Look& look) const;

    void open() { isMainOpen = true; }
    void end(int code);
    void comeTo(Front window) { front = window; }
    /// Every return to the main window copies the colour again.
    void comeToMain();
    void comeToPicker(int picker) { front = static_cast<Front>(picker); }
    /// isByHue: the order that the settings give to a window that was closed.
    void openPicker(int picker, bool isByHue);
    void closePicker(int picker) { pickers.at(picker) = false; }
    void sort(bool isByHue);
    void openContrast();
    void switchOnTop() { isMainOnTop = !isMainOnTop; }
    void keepNoneOnTop() { isMainOnTop = false; }
    /// A cell was pressed, 0 to 35.
    void pressCell(int cell);
    /// The cell of the contrast window that has the frame.
    int framedCell() const { return framed; }

private:
    const Facts& facts;
    ClipboardFact& clipboard;
    bool isMainOpen = false;
    bool isMainOnTop = false;
    int exitCode = 0;
    Front front = Front::main;
    std::array<bool, 4> pickers = {};
    bool isSortedByHue = false;
    int framed = 0;
};
