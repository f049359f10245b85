#include <array>

#include "randomuser/model/Model.h"

namespace {

constexpr std::size_t longestFormat = 250;
constexpr std::array<const char*, 10> tokens = {"%UR%", "%UG%", "%UB%", "%LR%", "%LG%",
                                                "%LB%", "%DR%", "%DG%", "%DB%", "%LD%"};

}  // namespace

void Model::playDialogs(const Action& action) {
    switch (action.kind) {
        case Kind::openOptions: return openOptions();
        case Kind::openFormat: return openFormat();
        case Kind::openAbout: return show(Box::about);
        case Kind::chooseRow: chosen.formatIndex = action.value; return;
        case Kind::chooseOption: return chooseOption(action.value);
        case Kind::typeFormat: chosen.customFormat = action.text; return;
        case Kind::insertToken: {
            const std::string token = tokens.at(action.value);
            if (chosen.customFormat.size() + token.size() <= longestFormat) chosen.customFormat += token;
            return;
        }
        case Kind::closeDialog: return closeDialog(action.value == 1);
        default: return;
    }
}

void Model::openOptions() {
    chosen = settings;
    show(Box::options);
}

/// The editor reads everything that is stored.
void Model::openFormat() {
    settings = stored;
    chosen = settings;
    show(Box::format);
}

void Model::chooseOption(int option) {
    if (option < 2) chosen.promptToSave = option == 0 ? 1 : 0;
    if (option >= 2) chosen.sortIndex = option - 2;
}

/// The notation of the options is for the next start.
void Model::closeDialog(bool isAccepted) {
    const Box closed = box;
    box = Box::none;
    restartCountdown();
    if (!isAccepted) return;
    if (closed == Box::options) {
        stored = {settings.customFormat, chosen.formatIndex, chosen.sortIndex, chosen.promptToSave};
        settings.sortIndex = chosen.sortIndex;
        settings.promptToSave = chosen.promptToSave;
    }
    if (closed == Box::format) {
        stored.customFormat = chosen.customFormat;
        settings.customFormat = chosen.customFormat;
    }
}
