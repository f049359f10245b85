#include "settings/SettingsRules.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

bool IsFolder(std::string_view path) { return path == "D:\\Palettes"; }

/// A registry of a map, with one folder that exists.
struct Store {
    std::map<std::string, std::string, std::less<>> values;
    std::vector<std::pair<std::string, std::string>> written;

    bool take(AppState& state) {
        return TakeSettings(
            state,
            [this](std::string_view name) {
                const auto found = values.find(name);
                return found == values.end() ? std::string() : found->second;
            },
            IsFolder);
    }

    void restore(AppState& state) {
        RestoreDefaultSettings(state, [this](std::string_view name, std::string_view text) {
            written.emplace_back(name, text);
        });
    }
};

AppState FreshState() {
    AppState state;
    state.desktopFolder = "C:\\Desktop";
    return state;
}

bool IsUsable(const std::string& name, const std::string& text) {
    Store store{{{name, text}}, {}};
    AppState state = FreshState();
    return store.take(state);
}

}  // namespace

TEST(EverySetting, TakesItsOwnDefaultAndWhatItIsStoredAs) {
    for (const Setting& setting : allSettings) {
        AppState state;
        state.desktopFolder = "D:\\Palettes";
        EXPECT_TRUE(setting.isUsable(setting.defaultText, IsFolder)) << setting.valueName;
        setting.hold(state, setting.defaultText);
        EXPECT_TRUE(setting.isUsable(setting.text(state), IsFolder)) << setting.valueName;
    }
}

TEST(TakeSettings, AFirstStartReadsTheDefaultsAndLeavesTheDesktopForLater) {
    Store store;
    AppState state = FreshState();
    ASSERT_TRUE(store.take(state));
    EXPECT_EQ(state.settings.customFormat, "");
    EXPECT_EQ(state.settings.formatIndex, 0);
    EXPECT_EQ(state.savedFormatIndex, 0);
    EXPECT_EQ(state.settings.sortIndex, 0);
    EXPECT_EQ(state.settings.promptToSave, 1);
    EXPECT_EQ(state.settings.standardFolder, "");
}

TEST(TakeSettings, TakesWhatIsStored) {
    Store store{{{"CustomFormat", "%UR%"},
                 {"FormatIndex", "11"},
                 {"SortIndex", "1"},
                 {"PromptToSave", "0"},
                 {"StandardFolder", "D:\\Palettes"}},
                {}};
    AppState state = FreshState();
    ASSERT_TRUE(store.take(state));
    EXPECT_EQ(state.settings.customFormat, "%UR%");
    EXPECT_EQ(state.settings.formatIndex, 11);
    EXPECT_EQ(state.savedFormatIndex, 11);
    EXPECT_EQ(state.settings.sortIndex, 1);
    EXPECT_EQ(state.settings.promptToSave, 0);
    EXPECT_EQ(state.settings.standardFolder, "D:\\Palettes");
}

TEST(TakeSettings, FormatIndexIsExactlyOneOf0To11) {
    for (int index = 0; index <= 11; ++index) EXPECT_TRUE(IsUsable("FormatIndex", std::to_string(index)));
    for (const char* text : {"12", "01", " 1", "1 ", "-1", "+1", "x", "1.0", "011"}) {
        EXPECT_FALSE(IsUsable("FormatIndex", text)) << text;
    }
}

TEST(TakeSettings, CustomFormatHasAtMost250Characters) {
    EXPECT_TRUE(IsUsable("CustomFormat", std::string(250, 'x')));
    EXPECT_FALSE(IsUsable("CustomFormat", std::string(251, 'x')));
    EXPECT_FALSE(IsUsable("CustomFormat", std::string(1'000'000, 'x')));
}

TEST(TakeSettings, TheCustomFormatCountsCharactersNotBytes) {
    EXPECT_TRUE(IsUsable("CustomFormat", std::string(249, 'x') + "表"));
    EXPECT_FALSE(IsUsable("CustomFormat", std::string(249, 'x') + "表y"));
    EXPECT_TRUE(IsUsable("CustomFormat", std::string(248, 'x') + "\U0001F3A8"));
    EXPECT_FALSE(IsUsable("CustomFormat", std::string(249, 'x') + "\U0001F3A8"));
}

TEST(TakeSettings, SortIndexIs0Or1) {
    EXPECT_TRUE(IsUsable("SortIndex", "0"));
    EXPECT_TRUE(IsUsable("SortIndex", "1"));
    EXPECT_FALSE(IsUsable("SortIndex", "2"));
    EXPECT_FALSE(IsUsable("SortIndex", "-1"));
}

TEST(TakeSettings, PromptToSaveIs0Or1AndNoTruthWord) {
    EXPECT_TRUE(IsUsable("PromptToSave", "0"));
    EXPECT_TRUE(IsUsable("PromptToSave", "1"));
    EXPECT_FALSE(IsUsable("PromptToSave", "-1"));
    EXPECT_FALSE(IsUsable("PromptToSave", "True"));
    EXPECT_FALSE(IsUsable("PromptToSave", "2"));
}

TEST(TakeSettings, StandardFolderMustBeAValidFolder) {
    EXPECT_TRUE(IsUsable("StandardFolder", "D:\\Palettes"));
    EXPECT_FALSE(IsUsable("StandardFolder", "D:\\Gone"));
}

TEST(TakeSettings, InJavaScriptNamesModeTheListsNotationIsLeft) {
    Store store{{{"FormatIndex", "5"}}, {}};
    AppState state = FreshState();
    state.jsNamesOnly = true;
    state.savedFormatIndex = 7;
    ASSERT_TRUE(store.take(state));
    EXPECT_EQ(state.settings.formatIndex, 5);
    EXPECT_EQ(state.savedFormatIndex, 7);
}

TEST(TakeSettings, StopsAtTheFirstUnusableValue) {
    Store store{{{"CustomFormat", "x"}, {"FormatIndex", "5"}, {"SortIndex", "9"}, {"PromptToSave", "0"}}, {}};
    AppState state = FreshState();
    state.settings.promptToSave = 1;
    ASSERT_FALSE(store.take(state));
    EXPECT_EQ(state.settings.customFormat, "x");
    EXPECT_EQ(state.settings.formatIndex, 5);
    EXPECT_EQ(state.settings.promptToSave, 1);
}

TEST(RestoreDefaultSettings, PutsAllFiveBackAndWritesThemInOrder) {
    Store store;
    AppState state = FreshState();
    state.settings = {
        .customFormat = "x", .formatIndex = 5, .sortIndex = 1, .promptToSave = 0, .standardFolder = "y"};
    state.savedFormatIndex = 5;
    store.restore(state);
    EXPECT_EQ(state.settings.customFormat, "");
    EXPECT_EQ(state.savedFormatIndex, 0);
    EXPECT_EQ(state.settings.sortIndex, 0);
    EXPECT_EQ(state.settings.promptToSave, 1);
    EXPECT_EQ(state.settings.standardFolder, "C:\\Desktop");
    const std::vector<std::pair<std::string, std::string>> expected = {{"CustomFormat", ""},
                                                                       {"FormatIndex", "0"},
                                                                       {"SortIndex", "0"},
                                                                       {"PromptToSave", "1"},
                                                                       {"StandardFolder", "C:\\Desktop"}};
    EXPECT_EQ(store.written, expected);
}

TEST(RestoreDefaultSettings, KeepsTheStartUpNotationInMemory) {
    Store store;
    AppState state = FreshState();
    state.settings.formatIndex = 5;
    state.jsNamesOnly = true;
    state.savedFormatIndex = 5;
    store.restore(state);
    EXPECT_EQ(state.settings.formatIndex, 5);
    EXPECT_EQ(state.savedFormatIndex, 0);
}
