// Which settings does the program find when it starts?
#pragma once

#include <string>

struct StoredSettings {
    std::string customFormat = {};
    int formatIndex = 0;
    int sortIndex = 0;
    int promptToSave = 1;
};

/// variant: 0 to 3.
StoredSettings SettingsOf(int variant);
