// What do the steps of a run cost, and what does the program come to hold?
#pragma once

#include <map>
#include <string>

#include "randomuser/Program.h"
#include "tests/driver/Usage.h"

/// What all sessions of a run have come to.
struct Figures {
    int bits = 0;  ///< of the program
    int starts = 0;
    double slowestAnswer = 0;  ///< milliseconds
    double slowestStep = 0;    ///< from the input until the window shows what it must
    std::string slowestAction = {};
    Growth growth = {};
    struct Share {
        int steps = 0;
        double milliseconds = 0;
    };
    std::map<std::string, Share> shares = {};  ///< of each kind of action
};

class Measurements {
public:
    explicit Measurements(Figures& figures) : figures(figures) {}

    /// A program has started.
    void begin(const Program& started);
    void addStep(const Action& action, double milliseconds);
    /// program: as it is after the step; look: what it shows.
    void addUsage(const Action& action, const Look& look, const Program& program);
    void addAnswer(double milliseconds);

private:
    /// Of one program.
    struct Course {
        int steps = 0;
        int firstStep = 0;  ///< the step of the first figures
        int drops = 0;      ///< since then
        int nextMeasure = 0;
        Growth growth = {};
        bool hasShownHelp = false;
        bool hasShownFiles = false;
    };

    bool isLoading(const Action& action, const Look& look);
    bool isDue(const Look& look);
    void measure(const Program& program);

    Figures& figures;
    Course course;
};
