#include "randomuser/model/Dialogs.h"

#include <array>

#include "core/Characters.h"

namespace {

constexpr std::size_t longestFormat = 250;
constexpr std::array<const char*, 10> tokens = {"%UR%", "%UG%", "%UB%", "%LR%", "%LG%",
                                                "%LB%", "%DR%", "%DG%", "%DB%", "%LD%"};

}  // namespace

void Dialogs::tell(Look& look) const {
    if (box.is(Box::Kind::format)) look.box.text = chosen.customFormat;
    if (!box.is(Box::Kind::options)) return;
    look.box.row = chosen.formatIndex;
    look.box.asksToSave = chosen.promptToSave == 1;
    look.box.isByHue = chosen.sortIndex == 1;
}

void Dialogs::load(const StoredSettings& found) {
    settings = found;
    stored = found;
}

void Dialogs::openOptions() {
    chosen = settings;
    box.show(Box::Kind::options);
}

/// The editor reads everything that is stored.
void Dialogs::openFormat() {
    settings = stored;
    chosen = settings;
    box.show(Box::Kind::format);
}

void Dialogs::chooseOption(int option) {
    if (option < 2) chosen.promptToSave = option == 0 ? 1 : 0;
    if (option >= 2) chosen.sortIndex = option - 2;
}

void Dialogs::insertToken(int token) {
    const std::string text = tokens.at(token);
    if (CharacterCount(chosen.customFormat) + text.size() <= longestFormat) chosen.customFormat += text;
}

void Dialogs::close(bool isAccepted) {
    const Box::Kind closed = box.close();
    if (!isAccepted) return;
    if (closed == Box::Kind::options) takeOptions();
    if (closed == Box::Kind::format) takeFormat();
}

/// The notation of the options is for the next start.
void Dialogs::takeOptions() {
    stored = {settings.customFormat, chosen.formatIndex, chosen.sortIndex, chosen.promptToSave};
    settings.sortIndex = chosen.sortIndex;
    settings.promptToSave = chosen.promptToSave;
}

void Dialogs::takeFormat() {
    stored.customFormat = chosen.customFormat;
    settings.customFormat = chosen.customFormat;
}
