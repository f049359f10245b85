// Which settings are there, what is accepted for each, and what do they fall back to?
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "support/AppState.h"

/// What the settings that a dialog edits are called where they are stored.
namespace value_names {

inline constexpr std::string_view customFormat = "CustomFormat";
inline constexpr std::string_view formatIndex = "FormatIndex";
inline constexpr std::string_view sortIndex = "SortIndex";
inline constexpr std::string_view promptToSave = "PromptToSave";
inline constexpr std::string_view standardFolder = "StandardFolder";

}  // namespace value_names

/// The length of the longest custom template, in characters.
inline constexpr std::size_t customFormatLimit = 250;

/// Whether a folder can be used, which only Windows can tell.
using FolderCheck = std::function<bool(std::string_view path)>;

/// One stored value.
struct Setting {
    std::string_view valueName;
    std::string_view defaultText;  ///< what a missing or empty value stands for; a folder's "": the desktop
    bool (*isUsable)(std::string_view text, const FolderCheck& isValidFolder);
    void (*hold)(AppState& state, std::string_view text);
    std::string (*text)(const AppState& state);
};

/// In the order in which they are read and written.
extern const std::span<const Setting> allSettings;

/// Reads the text of one stored value; "" for a value that is missing.
using SettingReader = std::function<std::string(std::string_view valueName)>;
using SettingWriter = std::function<void(std::string_view valueName, std::string_view text)>;

/// Takes the stored settings one after another into state. Returns false at the first unusable value: those
/// before it have been taken, it and those after it have not.
bool TakeSettings(AppState& state, const SettingReader& read, const FolderCheck& isValidFolder);

/// Puts every setting back to its default and writes them all; desktopFolder is already set. The start-up
/// notation in memory is kept.
void RestoreDefaultSettings(AppState& state, const SettingWriter& write);
