// Do the program and the model agree after each step?
#pragma once

#include <memory>
#include <string>

#include "randomuser/ClipboardWatch.h"
#include "randomuser/Comparison.h"
#include "randomuser/Measurements.h"
#include "randomuser/OtherProgram.h"
#include "randomuser/Program.h"
#include "randomuser/model/Model.h"

/// At every so many steps everything is looked at.
inline constexpr int stepsToEverything = 10;

/// One program at a time beside one model.
class Session {
public:
    /// patience: how many milliseconds the window may take to show what it must.
    Session(const Facts& facts, Figures& figures, DWORD patience)
        : patience(patience), model(facts), measurements(figures) {}

    const Model& state() const { return model; }
    /// Plays an action that is possible. What differs then, or "".
    std::string play(const Action& action);

private:
    /// What the model has told before the step.
    struct Earlier {
        Look look;
        Files files;
        ClipboardFact clipboard;
    };

    /// Starts the program. "", or what is missing.
    [[nodiscard]] std::string start(int variant);
    std::string act(const Action& action, const Look& earlier);
    std::string disagreement(const Earlier& earlier, Extent extent);
    std::string windowDifference(const Look& earlier, Extent extent);
    std::string exitDifference() const;
    std::string filesDifference(const Files& earlier) const;

    DWORD patience;
    Model model;
    Measurements measurements;
    ClipboardWatch clipboardWatch;
    OtherProgram other;
    std::unique_ptr<Program> program;
    int steps = 0;
};
