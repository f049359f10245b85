// Does Windows see another text than at the first time, and the same folder?
#include "palette/InitialFolder.h"

#include <gtest/gtest.h>

#include <set>

TEST(InitialFolders, FirstIsSpeltInTheWayOfTheRun) {
    EXPECT_EQ(InitialFolder(0).of("C:\\mine"), "C:\\mine\\.");
    EXPECT_EQ(InitialFolder(8).of("C:\\mine"), "C:\\mine\\.\\.\\.");
}

TEST(InitialFolders, SixteenRunsInARowSpellItInSixteenWays) {
    std::set<std::string> spelt;
    for (unsigned run = 0; run < 16; ++run) spelt.insert(InitialFolder(1024 + 4 * run).of("C:\\mine"));
    EXPECT_EQ(spelt.size(), 16U);
    EXPECT_FALSE(spelt.contains("C:\\mine"));
}

TEST(InitialFolders, SameAsTheFirstIsSpeltOtherwiseEachTime) {
    InitialFolder initial(0);
    initial.of("C:\\mine");
    EXPECT_EQ(initial.of("C:\\mine"), "C:\\mine\\.\\.");
    EXPECT_EQ(initial.of("C:\\mine"), "C:\\mine\\.\\.");
}

TEST(InitialFolders, RootHasItsBackslashAlready) {
    InitialFolder initial(0);
    EXPECT_EQ(initial.of("C:\\"), "C:\\.");
    EXPECT_EQ(initial.of("C:\\"), "C:\\.\\.");
}

TEST(InitialFolders, AnotherThanTheFirstKeepsTheWayOfTheRun) {
    InitialFolder initial(0);
    initial.of("C:\\mine");
    EXPECT_EQ(initial.of("D:\\yours"), "D:\\yours\\.");
    EXPECT_EQ(initial.of("C:\\mine"), "C:\\mine\\.\\.");
}

TEST(InitialFolders, FolderThatWouldGetTooLongIsAsItIs) {
    const std::string fits = "C:\\" + std::string(254, 'f');
    EXPECT_EQ(InitialFolder(0).of(fits), fits + "\\.");
    EXPECT_EQ(InitialFolder(0).of(fits + 'f'), fits + 'f');
}
