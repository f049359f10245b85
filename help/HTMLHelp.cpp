#include "help/HTMLHelp.h"

#include "toolkit/platform/SystemFunction.h"

namespace {

constexpr UINT displayTopic = 0;
constexpr UINT closeAll = 18;

DWORD_PTR Text(const char* text) { return reinterpret_cast<DWORD_PTR>(text); }

}  // namespace

void HTMLHelp::DisplayTopicURL() {
    if (!viewer) {
        // It stays loaded: its windows may outlive the call that closes them.
        viewer = SystemFunction<Viewer>("hhctrl.ocx", "HtmlHelpA");
    }
    viewer(nullptr, file.c_str(), displayTopic, Text(topic.c_str()));
}

void HTMLHelp::HelpClose() const {
    if (viewer) viewer(nullptr, "", closeAll, Text("0"));
}
