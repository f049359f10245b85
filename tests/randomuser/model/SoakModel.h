// How does a test play actions to the random user's model?
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "randomuser/model/Model.h"
#include "tests/core/NamedColors.h"

inline constexpr int yes = 6;
inline constexpr int no = 7;

/// A model of a program that has just started.
class SoakModel : public testing::Test {
protected:
    SoakModel() { play({Kind::start}); }

    void play(const Action& action) {
        ASSERT_TRUE(model.isPossible(action)) << LineOf(action);
        model.play(action);
    }
    void moveRed() { play({Kind::sliderArrow, 0, -1}); }
    void chooseFile(const std::string& name) {
        play({Kind::choosePath, 0, 0, std::string(filesFolder) + '\\' + name});
    }
    void open(const std::string& name) {
        play({Kind::openPalette});
        if (model.look().box.title == "Huevox") play({Kind::answer, 0, no});
        chooseFile(name);
    }

    const Facts facts = Facts(ReadJavaScriptColors());
    Model model = Model(facts);
};
