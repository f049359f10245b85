#include "randomuser/Measurements.h"

#include <algorithm>
#include <utility>

#include "randomuser/model/Rows.h"

namespace {

constexpr int warmUp = 500;
constexpr int interval = 500;

}  // namespace

void Measurements::begin(const Program& started) {
    course = {};
    figures.bits = BitsOf(started.process);
    ++figures.starts;
}

void Measurements::addStep(const Action& action, double milliseconds) {
    Figures::Share& share = figures.shares[RowOf(action.kind).name];
    ++share.steps;
    share.milliseconds += milliseconds;
    if (milliseconds <= figures.slowestStep) return;
    figures.slowestStep = milliseconds;
    figures.slowestAction = LineOf(action);
}

void Measurements::addAnswer(double milliseconds) {
    figures.slowestAnswer = std::max(figures.slowestAnswer, milliseconds);
}

void Measurements::addUsage(const Action& action, const Look& look, const Program& program) {
    ++course.steps;
    if (action.kind == Kind::dropFile) ++course.drops;
    if (isLoading(action, look)) {
        course.growth = {};
        course.nextMeasure = course.steps + interval;
    }
    if (isDue(look)) measure(program);
}

/// The libraries of the help viewer and of the file dialogs come with the first of each, and stay.
bool Measurements::isLoading(const Action& action, const Look& look) {
    const bool isHelp = action.kind == Kind::help && !std::exchange(course.hasShownHelp, true);
    const bool isDialog = look.box.kind == BoxKind::file && !std::exchange(course.hasShownFiles, true);
    return isHelp || isDialog;
}

/// Where nothing else is open, so that like is compared with like.
bool Measurements::isDue(const Look& look) {
    const bool isPlain = !look.box.isOpen() && look.pickers == std::array<bool, 4>{};
    if (!isPlain || course.steps < course.nextMeasure) return false;
    course.nextMeasure = course.steps + interval;
    return course.steps >= warmUp;
}

void Measurements::measure(const Program& program) {
    Growth& growth = course.growth;
    growth.last = UsageOf(program.process, program.eyes.main());
    if (growth.steps == 0 && growth.first.bytes == 0) {
        growth.first = growth.last;
        course.firstStep = course.steps;
        course.drops = 0;
    }
    growth.drops = course.drops;
    growth.steps = course.steps - course.firstStep;
    growth.pickMovements = program.hands.picks.movementCount();
    if (growth.steps >= figures.growth.steps) figures.growth = growth;
}
