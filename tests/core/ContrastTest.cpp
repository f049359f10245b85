// Is the contrast of two colours what the Web's guidelines say?
#include "core/Contrast.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/ColorTables.h"

namespace {

constexpr Color darkest = ColorOf(0, 0, 0);
constexpr Color lightest = ColorOf(255, 255, 255);

constexpr Color Gray(int level) { return ColorOf(level, level, level); }

using Pair = std::pair<PackedColor, PackedColor>;

std::vector<Pair> PairsOfReferenceColors() {
    std::set<PackedColor> colors(colorTables.websafeColor.begin(), colorTables.websafeColor.end());
    colors.insert(colorTables.failsafeColor.begin(), colorTables.failsafeColor.end());
    colors.insert(colorTables.jsColor.begin(), colorTables.jsColor.end());
    std::vector<Pair> pairs;
    for (const PackedColor one : colors) {
        for (const PackedColor other : colors) pairs.emplace_back(one, other);
    }
    return pairs;
}

std::vector<Pair> RandomPairs(int count) {
    std::mt19937 random(2004);
    std::uniform_int_distribution<PackedColor> color(0, 0xFFFFFF);
    std::vector<Pair> pairs(static_cast<std::size_t>(count));
    for (Pair& pair : pairs) pair = {color(random), color(random)};
    return pairs;
}

/// A file that is removed with the value.
class Scratch {
public:
    explicit Scratch(std::string name) : name(std::move(name)) {}
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    ~Scratch() { std::remove(name.c_str()); }

    const std::string name;
};

/// What others say of the pairs, in their order.
std::vector<double> RatiosOfOthers(const std::vector<Pair>& pairs) {
    const std::string folder =
        testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name();
    const Scratch asked(folder + ".pairs");
    const Scratch answers(folder + ".ratios");
    std::ofstream question(asked.name);
    for (const auto& [one, other] : pairs) question << one << ' ' << other << '\n';
    question.close();
    const std::string command = "node '" HUEVOX_CONTRAST "' '" + asked.name + "' >'" + answers.name + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::ifstream answer(answers.name);
    std::vector<double> ratios;
    for (double ratio = 0; answer >> ratio;) ratios.push_back(ratio);
    return ratios;
}

void ExpectTheSame(const std::vector<Pair>& pairs) {
    const std::vector<double> theirs = RatiosOfOthers(pairs);
    ASSERT_EQ(theirs.size(), pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto& [one, other] = pairs[i];
        ASSERT_NEAR(ContrastRatio(Unpack(one), Unpack(other)), theirs[i], 1e-12) << one << ' ' << other;
    }
}

}  // namespace

TEST(Contrast, OfBlackAndWhiteIsTheGreatestAndOfOneColorTheLeast) {
    EXPECT_EQ(ContrastRatio(darkest, lightest), 21);
    EXPECT_EQ(ContrastRatio(lightest, darkest), 21);
    EXPECT_EQ(ContrastRatio(Gray(119), Gray(119)), 1);
    EXPECT_EQ(RelativeLuminance(darkest), 0);
    EXPECT_EQ(RelativeLuminance(lightest), 1);
}

TEST(Contrast, OfAGrayIsLinearUpToTheTenthLevelAndAPowerFromTheEleventh) {
    EXPECT_NEAR(RelativeLuminance(Gray(10)), 10 / 255.0 / 12.92, 1e-15);
    EXPECT_NEAR(RelativeLuminance(Gray(11)), 0.003346535763899161, 1e-15);
}

TEST(Contrast, WeighsEachChannelAsTheEyeDoes) {
    EXPECT_NEAR(RelativeLuminance(ColorOf(255, 0, 0)), 0.2126, 1e-15);
    EXPECT_NEAR(RelativeLuminance(ColorOf(0, 255, 0)), 0.7152, 1e-15);
    EXPECT_NEAR(RelativeLuminance(ColorOf(0, 0, 255)), 0.0722, 1e-15);
}

TEST(Contrast, OfTheGraysAroundTheLimitOnWhite) {
    EXPECT_EQ(RatioText(ContrastRatio(Gray(0x77), lightest)), "4.47");
    EXPECT_EQ(ContrastGrade(ContrastRatio(Gray(0x77), lightest)), "AA 18 pt");
    EXPECT_EQ(RatioText(ContrastRatio(Gray(0x76), lightest)), "4.54");
    EXPECT_EQ(ContrastGrade(ContrastRatio(Gray(0x76), lightest)), "AA");
}

TEST(Contrast, OfAllPairsOfReferenceColorsIsWhatOthersSay) { ExpectTheSame(PairsOfReferenceColors()); }

TEST(Contrast, OfRandomPairsIsWhatOthersSay) { ExpectTheSame(RandomPairs(100'000)); }

TEST(ContrastText, HasTwoDecimalsWhichAreCut) {
    EXPECT_EQ(RatioText(1), "1.00");
    EXPECT_EQ(RatioText(21), "21.00");
    EXPECT_EQ(RatioText(1.056), "1.05");
    EXPECT_EQ(RatioText(4.4999), "4.49");
    EXPECT_EQ(RatioText(10.999), "10.99");
}

TEST(ContrastText, OfTheGradeChangesExactlyAtEachLimit) {
    EXPECT_EQ(ContrastGrade(21), "AAA");
    EXPECT_EQ(ContrastGrade(7), "AAA");
    EXPECT_EQ(ContrastGrade(6.9999), "AA");
    EXPECT_EQ(ContrastGrade(4.5), "AA");
    EXPECT_EQ(ContrastGrade(4.4999), "AA 18 pt");
    EXPECT_EQ(ContrastGrade(3), "AA 18 pt");
    EXPECT_EQ(ContrastGrade(2.9999), "-");
    EXPECT_EQ(ContrastGrade(1), "-");
}
