// Which keys and clicks does each kind of action take?
#pragma once

#include "randomuser/Hands.h"
#include "randomuser/model/Action.h"

/// What is played, and what must have been seen before.
struct Moment {
    Hands& hands;
    const Action& action;
    const Look& before;
};

struct Way {
    Kind kind;
    void (*play)(const Moment& now);
};

/// Each kind has one.
const Way& WayOf(Kind kind);
