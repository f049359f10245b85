// What does the random user do next?
#pragma once

#include <random>
#include <string>

#include "randomuser/model/Action.h"
#include "randomuser/model/Model.h"

/// The same seed and the same states give the same actions on every platform.
class Chooser {
public:
    explicit Chooser(unsigned seed) : random(seed) {}

    /// An action that is possible now.
    Action next(const Model& model);

private:
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    Kind kind();
    Action filled(Kind kind);
    Action filledInBox(Kind kind);
    template <class Texts>
    std::string oneOf(const Texts& texts) {
        return texts.at(static_cast<std::size_t>(below(static_cast<int>(texts.size()))));
    }
    Action swatch(Kind kind);
    int button();

    std::mt19937 random;
};
