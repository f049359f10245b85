// What does the random user do next?
#pragma once

#include "randomuser/model/Action.h"
#include "randomuser/model/Draws.h"
#include "randomuser/model/Model.h"

/// The same seed and the same states give the same actions everywhere.
class Chooser {
public:
    explicit Chooser(unsigned seed) : draws(seed) {}

    /// An action that is possible now.
    Action next(const Model& model);

private:
    Action any();

    Draws draws;
};
