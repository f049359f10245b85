#include "help/HTMLHelp.h"

#include "toolkit/platform/SystemFunction.h"
#include "toolkit/platform/Text.h"

namespace {

constexpr UINT displayTopic = 0;
constexpr UINT closeAll = 18;

DWORD_PTR Text(const wchar_t* text) { return reinterpret_cast<DWORD_PTR>(text); }

}  // namespace

void HTMLHelp::DisplayTopicURL() {
    if (!viewer) {
        // It stays loaded: its windows may outlive the call that closes them.
        viewer = SystemFunction<Viewer>("hhctrl.ocx", "HtmlHelpW");
    }
    viewer(nullptr, Wide(file).c_str(), displayTopic, Text(Wide(topic).c_str()));
}

void HTMLHelp::HelpClose() const {
    if (viewer) viewer(nullptr, L"", closeAll, Text(L"0"));
}
