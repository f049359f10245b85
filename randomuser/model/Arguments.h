// With which numbers and which text does an action come?
#pragma once

#include "randomuser/model/Action.h"
#include "randomuser/model/Draws.h"

/// which: 0 to whiches - 1; value: one of so many values from first on, step apart. Of one there is no
/// choice.
template <int whiches, int values, int first = 0, int step = 1>
void Numbers(Action& action, Draws& draws) {
    if constexpr (whiches > 1) action.which = draws.below(whiches);
    if constexpr (values > 1) action.value = first + step * draws.below(values);
}
template <int count>
void Which(Action& action, Draws& draws) {
    Numbers<count, 1>(action, draws);
}
template <int count, int first = 0>
void Value(Action& action, Draws& draws) {
    Numbers<1, count, first>(action, draws);
}
inline void NoArguments(Action& /*action*/, Draws& /*draws*/) {}

void SliderKeys(Action& action, Draws& draws);
void TypedValue(Action& action, Draws& draws);
void TypedName(Action& action, Draws& draws);
void AnySwatch(Action& action, Draws& draws);
void CopiedText(Action& action, Draws& draws);
void AnyButton(Action& action, Draws& draws);
void AnyPath(Action& action, Draws& draws);
void DroppedPath(Action& action, Draws& draws);
void TypedFormat(Action& action, Draws& draws);
