#include "settings/SettingsRules.h"

#include <array>
#include <charconv>

#include "core/Characters.h"
#include "core/ColorCode.h"

namespace {

/// Whether text is a number from 0 to last in decimal digits, without sign or padding.
template <int last>
bool IsNumber(std::string_view text, const FolderCheck&) {
    for (int number = 0; number <= last; ++number) {
        if (text == std::to_string(number)) return true;
    }
    return false;
}

bool IsShortEnough(std::string_view text, const FolderCheck&) {
    return CharacterCount(text) <= customFormatLimit;
}

/// "" stands for the desktop folder, unchecked, so that a first start never finds its settings unusable.
bool IsFolder(std::string_view text, const FolderCheck& isValidFolder) {
    return text.empty() || isValidFolder(text);
}

using NumberSetting = int Settings::*;

template <NumberSetting member>
void HoldNumber(AppState& state, std::string_view text) {
    std::from_chars(text.data(), text.data() + text.size(), state.settings.*member);
}

template <NumberSetting member>
std::string NumberText(const AppState& state) {
    return std::to_string(state.settings.*member);
}

void HoldCustomFormat(AppState& state, std::string_view text) { state.settings.customFormat = text; }
std::string CustomFormatText(const AppState& state) { return state.settings.customFormat; }

void HoldFormatIndex(AppState& state, std::string_view text) {
    HoldNumber<&Settings::formatIndex>(state, text);
    if (!state.jsNamesOnly) state.savedFormatIndex = state.settings.formatIndex;
}

std::string SavedFormatIndexText(const AppState& state) { return std::to_string(state.savedFormatIndex); }

void HoldStandardFolder(AppState& state, std::string_view text) { state.settings.standardFolder = text; }
std::string StandardFolderText(const AppState& state) { return state.settings.standardFolder; }

constexpr std::array rows = std::to_array<Setting>({
    {value_names::customFormat, "", IsShortEnough, HoldCustomFormat, CustomFormatText},
    {value_names::formatIndex, "0", IsNumber<notationCount - 1>, HoldFormatIndex, SavedFormatIndexText},
    {value_names::sortIndex, "0", IsNumber<1>, HoldNumber<&Settings::sortIndex>,
     NumberText<&Settings::sortIndex>},
    {value_names::promptToSave, "1", IsNumber<1>, HoldNumber<&Settings::promptToSave>,
     NumberText<&Settings::promptToSave>},
    {value_names::standardFolder, "", IsFolder, HoldStandardFolder, StandardFolderText},
});

}  // namespace

constinit const std::span<const Setting> allSettings = rows;

bool TakeSettings(AppState& state, const SettingReader& read, const FolderCheck& isValidFolder) {
    for (const Setting& setting : allSettings) {
        const std::string stored = read(setting.valueName);
        const std::string_view text = stored.empty() ? setting.defaultText : std::string_view(stored);
        if (!setting.isUsable(text, isValidFolder)) return false;
        setting.hold(state, text);
    }
    return true;
}

void RestoreDefaultSettings(AppState& state, const SettingWriter& write) {
    const int startNotation = state.settings.formatIndex;
    for (const Setting& setting : allSettings) setting.hold(state, setting.defaultText);
    state.settings.standardFolder = state.desktopFolder;
    state.settings.formatIndex = startNotation;
    state.savedFormatIndex = 0;
    for (const Setting& setting : allSettings) write(setting.valueName, setting.text(state));
}
