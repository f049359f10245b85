#include "mainwindow/panels/Turn.h"

#include <gtest/gtest.h>

TEST(Turn, IsOvertakenByANewerOne) {
    unsigned turns = 0;
    const Turn older(turns);
    EXPECT_FALSE(older.isOvertaken());
    const Turn newer(turns);
    EXPECT_TRUE(older.isOvertaken());
    EXPECT_FALSE(newer.isOvertaken());
}
