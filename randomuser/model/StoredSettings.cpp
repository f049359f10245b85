#include "randomuser/model/StoredSettings.h"

StoredSettings SettingsOf(int variant) {
    switch (variant) {
        case 0: return {"", 0, 0, 1};
        case 1: return {"%DR%/%UG%-%LB% & %LD%", 11, 1, 1};
        case 2: return {"%%UR%%", 3, 0, 0};
        default: return {"colour: #%LR%%LG%%LB%;", 10, 1, 1};
    }
}
