#include "randomuser/Options.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

Options Read(const std::vector<std::string_view>& arguments, std::string_view minutesOfTests = "3") {
    return ReadOptions(arguments, minutesOfTests);
}

/// A file for one test.
class ReplayFile {
public:
    explicit ReplayFile(const char* text) : path(std::filesystem::temp_directory_path() / Name()) {
        std::ofstream(path) << text;
    }
    ReplayFile(const ReplayFile&) = delete;
    ReplayFile& operator=(const ReplayFile&) = delete;
    ~ReplayFile() { std::filesystem::remove(path); }

    Replay read() const { return ReadReplay(path.string()); }

private:
    /// Tests of several builds run at the same time.
    std::string Name() const { return "replay-" + std::to_string(reinterpret_cast<std::uintptr_t>(this)); }

    std::filesystem::path path;
};

}  // namespace

TEST(SoakOptions, AreTakenFromTheArguments) {
    const Options options =
        Read({"--seed", "4294967295", "--steps", "7", "--minutes", "1.5", "--replay", "Z:\\some.txt"});
    EXPECT_EQ(options.problem, "");
    EXPECT_EQ(options.seed, 4294967295U);
    EXPECT_EQ(options.steps, 7);
    EXPECT_EQ(options.minutes, 1.5);
    EXPECT_EQ(options.replay, "Z:\\some.txt");
}

TEST(SoakOptions, ShareTheTestsMinutesOut) {
    EXPECT_EQ(Read({"--share-of-tests", "2"}, "5").minutes, 2.5);
    EXPECT_NE(Read({"--share-of-tests", "0"}, "5").problem, "");
    EXPECT_EQ(Read({"--share-of-tests", "2"}, "long").problem,
              "This is not understood: --share-of-tests 2 of long minutes.");
}

TEST(SoakOptions, ThatAreNotUnderstoodAreTold) {
    for (const auto& [name, value] :
         {std::pair("--seed", "x"), std::pair("--seed", "-1"), std::pair("--seed", "4294967296"),
          std::pair("--seed", "1 "), std::pair("--steps", "0"), std::pair("--steps", "1e3"),
          std::pair("--minutes", "0"), std::pair("--minutes", ""), std::pair("--minutes", "nan"),
          std::pair("--replay", ""), std::pair("--sed", "1")})
        EXPECT_EQ(Read({name, value}).problem,
                  std::string("This is not understood: ") + name + ' ' + value + '.');
    EXPECT_EQ(Read({"--seed", "1", "--steps"}).problem, "There is no value after --steps.");
}

TEST(Replays, AreReadLineByLine) {
    const ReplayFile file("start 0 1\ntypeName 5 0 sea, [deep]\n");
    const Actions expected = {{Kind::start, 0, 1}, {Kind::typeName, 5, 0, "sea, [deep]"}};
    EXPECT_EQ(file.read().actions, expected);
    EXPECT_EQ(file.read().problem, "");
}

TEST(Replays, ThatCannotBePlayedAreTold) {
    EXPECT_EQ(ReadReplay("/nowhere/at/all.txt").problem, "/nowhere/at/all.txt cannot be read.");
    EXPECT_NE(ReadReplay(std::filesystem::temp_directory_path().string()).problem, "");
    for (const char* text : {"", "selectMark 1 0\n"})
        EXPECT_TRUE(ReplayFile(text).read().problem.ends_with(" does not start the program.")) << text;
    EXPECT_TRUE(
        ReplayFile("start 0 1\nselectMark 1\n").read().problem.ends_with(" is no action: selectMark 1"));
}
