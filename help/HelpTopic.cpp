#include "help/HelpTopic.h"

#include <array>

#include "core/PathText.h"
#include "support/Reported.h"
#include "toolkit/platform/Text.h"

namespace {

/// With a closing backslash.
std::string GetProgramFolder() {
    std::array<wchar_t, 1024> path{};
    ::GetModuleFileNameW(nullptr, path.data(), path.size());
    return std::string(FolderPart(Utf8(path.data())));
}

}  // namespace

void ShowHelpTopic(HTMLHelp& help, const char* topic, const Form& form) {
    Reported(form, messages::noHelp, [&] {
        help.setCHMFile(GetProgramFolder() + "huevox.chm");
        help.setTopicURL(topic);
        help.DisplayTopicURL();
    });
}
