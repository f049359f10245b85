#include "randomuser/model/Chooser.h"

#include <numeric>

#include "randomuser/model/Rows.h"

namespace {

int SumOfWeights() {
    const auto add = [](int sum, const Row& row) { return sum + row.weight; };
    return std::accumulate(AllRows().begin(), AllRows().end(), 0, add);
}

/// drawn: below the sum of all weights.
const Row& RowAt(int drawn) {
    auto row = AllRows().begin();
    for (; drawn >= row->weight; ++row) drawn -= row->weight;
    return *row;
}

}  // namespace

Action Chooser::next(const Model& model) {
    while (true) {
        Action action = any();
        if (model.isPossible(action)) return action;
    }
}

Action Chooser::any() {
    static const int sum = SumOfWeights();
    const Row& row = RowAt(draws.below(sum));
    Action action = {row.kind};
    row.fill(action, draws);
    return action;
}
