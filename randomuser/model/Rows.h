// What is there to know of each kind of action, beside the keys and clicks that it takes?
#pragma once

#include "randomuser/model/Action.h"
#include "randomuser/model/Draws.h"
#include "randomuser/model/Parts.h"

/// What an action needs to be open.
enum class Where {
    noProgram,
    anywhere,
    box,     ///< the box that lies over the main window
    main,    ///< the main window without a box; it comes to the front
    beside,  ///< the same, but the main window does not come to the front
};

struct Row {
    Kind kind;
    const char* name;  ///< in the lines of a replay
    int weight;        ///< how often it comes, of all that are possible; what takes long comes seldom
    Where where;
    void (*fill)(Action& action, Draws& draws);
    /// Beside what where says.
    bool (*isPossible)(const Parts& parts, const Action& action);
    /// What must be seen afterwards.
    void (*play)(Parts& parts, const Action& action);
};

using Rows = std::array<Row, kindCount>;

/// In the order of Kind.
const Rows& AllRows();
const Row& RowOf(Kind kind);
