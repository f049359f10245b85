// What is a run of the random user asked to do?
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "randomuser/model/Action.h"

struct Options {
    unsigned seed = 1;
    int steps = 100'000;
    double minutes = 30;  ///< at most
    std::string replay = {};
    std::string problem = {};  ///< what is wrong with the arguments, in one sentence, or ""
};

/// Reads "--seed 7 --minutes 1.5" and the like. minutesOfTests is what --share-of-tests shares out.
Options ReadOptions(const std::vector<std::string_view>& arguments, std::string_view minutesOfTests);

struct Replay {
    Actions actions = {};
    std::string problem = {};  ///< as above
};

/// The actions of a file, one a line.
Replay ReadReplay(const std::string& path);
