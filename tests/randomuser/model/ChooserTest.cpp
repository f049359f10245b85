#include "randomuser/model/Chooser.h"

#include <algorithm>
#include <vector>

#include "randomuser/model/Rows.h"
#include "tests/randomuser/model/SoakModel.h"

TEST_F(SoakModel, IsNeverAtALossForTheNextAction) {
    Chooser chooser(7);
    Chooser same(7);
    for (int step = 0; step < 20'000; ++step) {
        const Action action = chooser.next(model);
        ASSERT_EQ(same.next(model), action);
        model.play(action);
    }
}

TEST(SoakChooser, ComesToRarePathsOften) {
    const Facts facts(ReadJavaScriptColors());
    int givenUp = 0;
    int searches = 0;
    // One user in eight never meets aliceblue.
    for (unsigned seed = 1; seed <= 5; ++seed) {
        Chooser chooser(seed);
        Model model(facts);
        bool isNew = false;
        for (int step = 0; step < 20'000; ++step) {
            const Action action = chooser.next(model);
            if (action.kind == Kind::newPalette) isNew = model.isChanged();
            if (!model.look().box.isOpen() && action.kind != Kind::newPalette) isNew = false;
            const bool isSaveAs = model.look().box.title == "Save Palette As";
            if (isNew && isSaveAs && action.kind == Kind::cancelDialog) ++givenUp;
            const SixMarks marks = model.look().marks;
            model.play(action);
            const bool hasAliceblue = std::ranges::count(marks.colors, ColorOf(0xF0, 0xF8, 0xFF)) > 0;
            if (action.kind == Kind::findNames && hasAliceblue) ++searches;
        }
    }
    EXPECT_GE(givenUp, 15);
    EXPECT_GE(searches, 15);
}

TEST(SoakChooser, ComesToWhereEachActionIsPossible) {
    const Facts facts(ReadJavaScriptColors());
    Chooser chooser(1);
    Draws draws(1);
    Model model(facts);
    std::vector<Row> left(AllRows().begin(), AllRows().end());
    const auto isPossible = [&](const Row& row) {
        Action action = {row.kind};
        row.fill(action, draws);
        return model.isPossible(action);
    };
    for (int step = 0; step < 20'000 && !left.empty(); ++step) {
        std::erase_if(left, isPossible);
        model.play(chooser.next(model));
    }
    for (const Row& row : left) ADD_FAILURE() << row.name << " has never been possible";
}

TEST(SoakChooser, LeavesNoActionOut) {
    for (const Row& row : AllRows()) EXPECT_GT(row.weight, 0) << row.name;
}
