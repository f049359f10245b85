#include "settings/LoadSettings.h"

#include "settings/Folders.h"
#include "settings/SettingsRules.h"
#include "support/Messages.h"
#include "toolkit/forms/MsgBox.h"
#include "toolkit/platform/Text.h"

void StoreSetting(const RegistryStringHandler& registry, std::string_view valueName, std::string_view text) {
    registry.WriteString(HKEY_CURRENT_USER, settingsKey, valueName, text);
}

void LoadSettings(AppState& state, const RegistryStringHandler& registry, const Form& owner) {
    const auto read = [&](std::string_view valueName) {
        return registry.ReadString(HKEY_CURRENT_USER, settingsKey, valueName);
    };
    if (TakeSettings(state, read, IsValidFolder)) {
        // As the box for it can hold it, and a palette file.
        state.settings.customFormat = FromAnsi(Ansi(state.settings.customFormat));
        return;
    }
    GetDesktopFolder(state.desktopFolder);
    RestoreDefaultSettings(state, [&](std::string_view valueName, std::string_view text) {
        StoreSetting(registry, valueName, text);
    });
    MsgBox(&owner, messages::unusableSettings, MB_OK | MB_ICONINFORMATION, messages::title);
}

void FindStandardFolder(AppState& state) {
    if (!state.settings.standardFolder.empty()) return;
    GetDesktopFolder(state.desktopFolder);
    state.settings.standardFolder = state.desktopFolder;
}
