// Does Windows see another text than at the first time, and the same folder?
#include "palette/InitialFolder.h"

#include <gtest/gtest.h>

TEST(InitialFolders, FirstIsTheFolderAsItIs) {
    InitialFolder initial;
    EXPECT_EQ(initial.of("C:\\mine"), "C:\\mine");
}

TEST(InitialFolders, SameAsTheFirstIsSpeltOtherwiseEachTime) {
    InitialFolder initial;
    initial.of("C:\\mine");
    EXPECT_EQ(initial.of("C:\\mine"), "C:\\mine\\");
    EXPECT_EQ(initial.of("C:\\mine"), "C:\\mine\\");
}

TEST(InitialFolders, RootHasItsBackslashAlready) {
    InitialFolder initial;
    initial.of("C:\\");
    EXPECT_EQ(initial.of("C:\\"), "C:\\.");
}

TEST(InitialFolders, AnotherThanTheFirstIsAsItIs) {
    InitialFolder initial;
    initial.of("C:\\mine");
    EXPECT_EQ(initial.of("D:\\yours"), "D:\\yours");
    EXPECT_EQ(initial.of("C:\\mine"), "C:\\mine\\");
}
