// Do the program and the model agree after each step?
#pragma once

#include <map>
#include <memory>
#include <string>

#include "randomuser/Eyes.h"
#include "randomuser/Hands.h"
#include "randomuser/OtherProgram.h"
#include "randomuser/model/Model.h"
#include "tests/driver/Huevox.h"
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

/// At every so many steps everything is looked at.
inline constexpr int stepsToEverything = 10;

/// One program at a time beside one model.
class Session {
public:
    /// patience: how many milliseconds the window may take to show what it must.
    Session(const Facts& facts, Figures& figures, unsigned patience);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    const Model& state() const { return model; }
    /// Plays an action that is possible. What differs then, or "".
    std::string play(const Action& action);

private:
    /// A running program and who looks at it and acts on it.
    struct Program {
        Program() : huevox(Huevox::DoNotWait{}) {}
        Program(const Program&) = delete;
        Program& operator=(const Program&) = delete;
        ~Program();

        Huevox huevox;
        HANDLE process = nullptr;
        std::unique_ptr<Eyes> eyes = {};
        std::unique_ptr<Hands> hands = {};
        int steps = 0;
        int firstStep = 0;  ///< the step of the first figures
        int nextMeasure = 0;
        Growth growth = {};
        bool hasShownHelp = false;
        bool hasShownFiles = false;
    };

    /// Starts the program. "", or what is missing.
    [[nodiscard]] std::string start(int variant);
    std::string agree(const Look& earlier, Extent extent);
    std::string filesDifference(const Files& before) const;
    std::string clipboardDifference(const ClipboardFact& before);
    std::string settle();
    void measure(const Action& action, double milliseconds);

    Figures& figures;
    unsigned patience;
    Model model;
    OtherProgram other;
    std::unique_ptr<Program> program;
    int steps = 0;
    DWORD clipboardNumber = 0;  ///< at the end of the last step
};
