#include "help/HelpTopic.h"

#include <array>

#include "core/PathText.h"
#include "support/Reported.h"
#include "toolkit/platform/CodePage.h"

namespace {

/// With a closing backslash.
std::string GetProgramFolder() {
    std::array<char, 1024> path{};
    ::GetModuleFileNameA(nullptr, path.data(), path.size());
    return std::string(FolderPart(path.data(), IsLeadByte));
}

}  // namespace

void ShowHelpTopic(HTMLHelp& help, const char* topic, const Form& form) {
    Reported(form, messages::noHelp, [&] {
        help.setCHMFile(GetProgramFolder() + "huevox.chm");
        help.setTopicURL(topic);
        help.DisplayTopicURL();
    });
}
