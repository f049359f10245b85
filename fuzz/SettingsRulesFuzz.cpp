// Anything may be stored: afterwards every setting in memory is usable, and what was unusable is repaired.
#include <array>

#include "fuzz/FuzzInput.h"
#include "settings/SettingsRules.h"

namespace {

constexpr std::array<std::string_view, 5> valueNames = {"CustomFormat", "FormatIndex", "SortIndex",
                                                        "PromptToSave", "StandardFolder"};
const std::string desktop = "C:\\Desktop";

/// The stored texts, in the order of their names.
using Store = std::array<std::string, 5>;

std::size_t PlaceOf(std::string_view name) {
    const std::size_t place = std::ranges::find(valueNames, name) - valueNames.begin();
    Require(place < valueNames.size());
    return place;
}

bool IsFolder(std::string_view path) { return path.starts_with("C:\\") && path.size() % 2 == 0; }

bool IsOneOf(const std::string& text, int count) {
    for (int number = 0; number < count; ++number) {
        if (text == std::to_string(number)) return true;
    }
    return false;
}

/// How many of the stored values, in their order, are usable before the first that is not.
std::size_t CountUsable(const Store& store) {
    const auto isUsable = [&](std::size_t setting) {
        const std::string& text = store[setting];
        if (setting == 0) return CountUnits(text) <= 250;
        if (text.empty()) return true;
        return setting == 4 ? IsFolder(text) : IsOneOf(text, setting == 1 ? 12 : 2);
    };
    std::size_t usable = 0;
    while (usable < valueNames.size() && isUsable(usable)) ++usable;
    return usable;
}

std::string TextOr(const std::string& text, const std::string& whenEmpty) {
    return text.empty() ? whenEmpty : text;
}

void RequireAcceptable(const AppState& state) {
    Require(CountUnits(state.settings.customFormat) <= 250);
    Require(state.settings.formatIndex >= 0 && state.settings.formatIndex <= 11);
    Require(state.savedFormatIndex >= 0 && state.savedFormatIndex <= 11);
    Require(state.settings.sortIndex == 0 || state.settings.sortIndex == 1);
    Require(state.settings.promptToSave == 0 || state.settings.promptToSave == 1);
    const std::string& folder = state.settings.standardFolder;
    Require(folder.empty() || folder == desktop || IsFolder(folder));
}

/// The first settings are the stored ones.
void RequireTaken(const AppState& state, const Store& store, std::size_t count) {
    const std::array<std::string, 5> held = {
        state.settings.customFormat, std::to_string(state.settings.formatIndex),
        std::to_string(state.settings.sortIndex), std::to_string(state.settings.promptToSave),
        state.settings.standardFolder};
    const std::array<std::string, 5> whenEmpty = {"", "0", "0", "1", ""};
    for (std::size_t setting = 0; setting < count; ++setting)
        Require(held[setting] == TextOr(store[setting], whenEmpty[setting]));
}

void RequireRepaired(const AppState& before, const AppState& state, const Store& store) {
    Require(store == Store{"", "0", "0", "1", desktop});
    Require(state.settings.customFormat.empty());
    Require(state.settings.formatIndex == before.settings.formatIndex);
    Require(state.savedFormatIndex == 0 && state.settings.sortIndex == 0);
    Require(state.settings.promptToSave == 1 && state.settings.standardFolder == desktop);
}

void Try(Store store, int startIndex, bool jsNamesOnly) {
    AppState state;
    state.desktopFolder = desktop;
    state.settings.standardFolder = desktop;
    state.settings.formatIndex = state.savedFormatIndex = startIndex;
    state.jsNamesOnly = jsNamesOnly;
    const auto read = [&](std::string_view name) { return store[PlaceOf(name)]; };

    const std::size_t usable = CountUsable(store);
    Require(TakeSettings(state, read, IsFolder) == (usable == valueNames.size()));
    RequireTaken(state, store, usable);
    const int shown = usable >= 2 && !jsNamesOnly ? state.settings.formatIndex : startIndex;
    Require(state.savedFormatIndex == shown);
    RequireAcceptable(state);
    if (usable == valueNames.size()) return;

    const AppState before = state;
    RestoreDefaultSettings(
        state, [&](std::string_view name, std::string_view text) { store[PlaceOf(name)] = text; });
    RequireRepaired(before, state, store);
    RequireAcceptable(state);
    // What a repair stores needs no repair at the next start.
    Require(TakeSettings(state, read, IsFolder));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const int start = input.takeByte();
    Store store;
    for (std::string& text : store) text = input.takeLine();
    Try(store, start % 12, start >= 128);
    return 0;
}
