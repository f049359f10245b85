#include "randomuser/model/Action.h"

#include <gtest/gtest.h>

#include "randomuser/model/Rows.h"

TEST(ActionLines, AreReadAsTheyWereWritten) {
    const Actions actions = {{Kind::start, 0, 3},
                             {Kind::sliderArrow, 2, -1},
                             {Kind::typeValue, 1, 0, " 9 "},
                             {Kind::choosePath, 0, 0, "C:\\a folder\\some.txt"},
                             {Kind::vainClick, 0, 5}};
    for (const Action& action : actions) EXPECT_EQ(ParseLine(LineOf(action)), action) << LineOf(action);
}

TEST(ActionLines, NameTheKindAndItsNumbers) {
    EXPECT_EQ(LineOf({Kind::selectMark, 4}), "selectMark 4 0");
    EXPECT_EQ(LineOf({Kind::typeName, 5, 0, "sea, [deep]"}), "typeName 5 0 sea, [deep]");
}

TEST(ActionLines, AreReadOfEveryKind) {
    for (const Row& row : AllRows()) {
        const std::optional<Action> read = ParseLine(LineOf({row.kind}));
        EXPECT_TRUE(read && read->kind == row.kind) << row.name << " is another's name, or none";
    }
}

TEST(ActionLines, OfAnyOtherFormAreRefused) {
    for (const char* line :
         {"", "selectMark", "selectMark x 0", "selectMark 1", "unheard of 1 2", "selectMark 1 2x"})
        EXPECT_FALSE(ParseLine(line)) << line;
}
