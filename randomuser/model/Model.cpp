#include "randomuser/model/Model.h"

#include "randomuser/model/Rows.h"

namespace {

bool IsOpenFor(Where where, const Parts& parts) {
    const bool isRunning = parts.windows.areOpen();
    switch (where) {
        case Where::noProgram: return !isRunning;
        case Where::anywhere: return isRunning;
        case Where::box: return isRunning && parts.box.isOpen();
        case Where::main:
        case Where::beside: return isRunning && !parts.box.isOpen();
    }
    return false;
}

}  // namespace

bool Model::isPossible(const Action& action) const {
    const Row& row = RowOf(action.kind);
    return IsOpenFor(row.where, *parts) && row.isPossible(*parts, action);
}

void Model::play(const Action& action) {
    const Row& row = RowOf(action.kind);
    if (row.where == Where::noProgram) parts = std::make_unique<Parts>(facts);
    parts->focus = 0;
    if (row.where == Where::main) parts->windows.comeToMain();
    row.play(*parts, action);
    parts->steps.note(parts->marks.state(), action);
}

Actions Possible(const Actions& actions, const Facts& facts) {
    Model model(facts);
    Actions possible;
    for (const Action& action : actions) {
        if (!model.isPossible(action)) continue;
        model.play(action);
        possible.push_back(action);
    }
    return possible;
}
