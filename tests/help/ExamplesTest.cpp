// Does the program write colours as the help says?
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/ColorCode.h"

namespace {

constexpr Color example = ColorOf(255, 204, 0);

using Cells = std::vector<std::string>;

std::string PageText(const char* name) {
    std::ifstream file(std::string(HUEVOX_HELP_TOPICS) + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void ReplaceEvery(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

/// What a reader sees: without tags.
std::string Shown(std::string text) {
    for (std::size_t tag = text.find('<'); tag != std::string::npos; tag = text.find('<')) {
        text.erase(tag, text.find('>', tag) - tag + 1);
    }
    ReplaceEvery(text, "&quot;", "\"");
    ReplaceEvery(text, "&amp;", "&");
    return text;
}

std::vector<std::string> Between(std::string_view text, std::string_view begin, std::string_view end) {
    std::vector<std::string> pieces;
    for (std::size_t at = text.find(begin); at != std::string_view::npos; at = text.find(begin, at)) {
        at += begin.size();
        pieces.emplace_back(text.substr(at, text.find(end, at) - at));
    }
    return pieces;
}

/// The rows of a page's tables that have so many cells; those of the heads are none.
std::vector<Cells> RowsOf(const char* page, std::size_t cellCount) {
    std::vector<Cells> rows;
    for (const std::string& row : Between(PageText(page), "<tr>", "</tr>")) {
        Cells cells = Between(row, "<td>", "</td>");
        std::ranges::transform(cells, cells.begin(), Shown);
        if (cells.size() == cellCount) rows.push_back(std::move(cells));
    }
    return rows;
}

}  // namespace

TEST(ExamplesOfTheHelp, EveryNotationIsShownAsItIsWritten) {
    const std::vector<Cells> rows = RowsOf("huevox9.htm", 2);
    ASSERT_EQ(rows.size(), notations.size());
    for (int index = 0; index < customNotation; ++index) {
        EXPECT_EQ(rows[index][0], notations[index].caption);
        EXPECT_EQ(ColorCode(index, example, ""), rows[index][1]);
    }
    EXPECT_EQ(rows[customNotation][0], notations[customNotation].caption);
}

TEST(ExamplesOfTheHelp, EveryPlaceholderIsShownWithWhatItStandsFor) {
    const std::vector<Cells> rows = RowsOf("huevox10.htm", 4);
    ASSERT_EQ(rows.size(), 10U);
    for (const Cells& row : rows) {
        EXPECT_EQ(row[1], '%' + row[0] + '%');
        EXPECT_EQ(ExpandCustomFormat(row[1], example), row[3]) << row[1];
    }
}

TEST(ExamplesOfTheHelp, EveryTemplateIsShownWithItsResult) {
    const std::vector<Cells> rows = RowsOf("huevox10.htm", 2);
    ASSERT_GE(rows.size(), 5U);
    for (const Cells& row : rows) EXPECT_EQ(ExpandCustomFormat(row[0], example), row[1]) << row[0];
}

TEST(ExamplesOfTheHelp, APlaceholderThatAReplacementFormsIsReplacedAsTheHelpSays) {
    ASSERT_NE(PageText("huevox10.htm").find("<code>%%UR%%</code> gives <code>%DB%</code>"),
              std::string::npos);
    EXPECT_EQ(ExpandCustomFormat("%%UR%%", ColorOf(0xDB, 1, 42)), "42");
}
