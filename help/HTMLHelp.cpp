#include "help/HTMLHelp.h"

#include <stdexcept>

namespace {

constexpr UINT displayTopic = 0;
constexpr UINT closeAll = 18;

DWORD_PTR Text(const char* text) { return reinterpret_cast<DWORD_PTR>(text); }

}  // namespace

void HTMLHelp::DisplayTopicURL() {
    if (!viewer) {
        // It stays loaded: its windows may outlive the call that closes them.
        const HMODULE library = ::LoadLibraryExA("hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        const FARPROC found = library ? ::GetProcAddress(library, "HtmlHelpA") : nullptr;
        if (!found) throw std::runtime_error("no help viewer");
        viewer = reinterpret_cast<Viewer>(reinterpret_cast<void*>(found));
    }
    viewer(nullptr, file.c_str(), displayTopic, Text(topic.c_str()));
}

void HTMLHelp::HelpClose() const {
    if (viewer) viewer(nullptr, "", closeAll, Text("0"));
}
