#include "settings/SettingsRules.h"

#include <array>
#include <optional>

namespace {

constexpr int lastFormatIndex = 11;

/// The number from 0 to last whose decimal text, without sign or padding, is text.
std::optional<int> ExactNumber(std::string_view text, int last) {
    for (int number = 0; number <= last; ++number) {
        if (text == std::to_string(number)) return number;
    }
    return std::nullopt;
}

bool TakeNumber(int& number, std::string_view text, int whenEmpty, int last) {
    const std::optional<int> taken = text.empty() ? whenEmpty : ExactNumber(text, last);
    if (taken) number = *taken;
    return taken.has_value();
}

bool TakeCustomFormat(AppState& state, std::string_view text, const TextChecks& checks) {
    if (CharacterCount(text, checks.isLeadByte) > customFormatLimit) return false;
    state.settings.customFormat = text;
    return true;
}

bool TakeFormatIndex(AppState& state, std::string_view text, const TextChecks&) {
    if (!TakeNumber(state.settings.formatIndex, text, 0, lastFormatIndex)) return false;
    if (!state.jsNamesOnly) state.savedFormatIndex = state.settings.formatIndex;
    return true;
}

bool TakeSortIndex(AppState& state, std::string_view text, const TextChecks&) {
    return TakeNumber(state.settings.sortIndex, text, 0, 1);
}

bool TakePromptToSave(AppState& state, std::string_view text, const TextChecks&) {
    return TakeNumber(state.settings.promptToSave, text, 1, 1);
}

/// The desktop folder stands in unchecked, so that a first start never finds its settings unusable.
bool TakeStandardFolder(AppState& state, std::string_view text, const TextChecks& checks) {
    if (!text.empty() && !checks.isValidFolder(text)) return false;
    state.settings.standardFolder = text.empty() ? state.desktopFolder : std::string(text);
    return true;
}

struct Setting {
    std::string_view valueName;
    bool (*take)(AppState& state, std::string_view text, const TextChecks& checks);
    std::string (*text)(const AppState& state);
};

constexpr std::array<Setting, 5> allSettings = {{
    {value_names::customFormat, TakeCustomFormat,
     [](const AppState& state) { return state.settings.customFormat; }},
    {value_names::formatIndex, TakeFormatIndex,
     [](const AppState& state) { return std::to_string(state.savedFormatIndex); }},
    {value_names::sortIndex, TakeSortIndex,
     [](const AppState& state) { return std::to_string(state.settings.sortIndex); }},
    {value_names::promptToSave, TakePromptToSave,
     [](const AppState& state) { return std::to_string(state.settings.promptToSave); }},
    {value_names::standardFolder, TakeStandardFolder,
     [](const AppState& state) { return state.settings.standardFolder; }},
}};

}  // namespace

bool TakeSettings(AppState& state, const SettingReader& read, const TextChecks& checks) {
    for (const Setting& setting : allSettings) {
        if (!setting.take(state, read(setting.valueName), checks)) return false;
    }
    return true;
}

void RestoreDefaultSettings(AppState& state, const SettingWriter& write) {
    state.settings = {.customFormat = "",
                      .formatIndex = state.settings.formatIndex,
                      .sortIndex = 0,
                      .promptToSave = 1,
                      .standardFolder = state.desktopFolder};
    state.savedFormatIndex = 0;
    for (const Setting& setting : allSettings) write(setting.valueName, setting.text(state));
}
