// How do the stored settings get into the program and back?
#pragma once

#include <string_view>

#include "settings/RegistryStringHandler.h"
#include "support/AppState.h"

class Form;

inline constexpr const char* settingsKey = "Software\\Quorvane\\Huevox 2004";

/// Stores the text of one setting.
void StoreSetting(const RegistryStringHandler& registry, std::string_view valueName, std::string_view text);

/// Reads, checks and takes all settings. If one is unusable, all go back to their defaults, in the
/// registry too, and the user is told over owner.
void LoadSettings(AppState& state, const RegistryStringHandler& registry, const Form& owner);

/// Before the standard folder is used: one that has not been chosen becomes the desktop. Only the shell knows
/// where that is, and most starts never need its libraries.
void FindStandardFolder(AppState& state);
