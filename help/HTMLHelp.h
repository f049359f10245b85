// How are pages of compiled help shown?
#pragma once

#include <string>
#include <string_view>

#include "toolkit/platform/Platform.h"

/// The help viewer of Windows. It is looked for when it is first needed, in the system's folder only.
class HTMLHelp {
public:
    /// Full path of the compiled help file.
    const std::string& CHMFile() const { return file; }
    void setCHMFile(std::string_view path) { file = path; }

    /// A page of it, such as "huevox1.htm".
    const std::string& TopicURL() const { return topic; }
    void setTopicURL(std::string_view page) { topic = page; }

    /// Throws std::runtime_error when there is no viewer. The viewer itself reports a missing file or page.
    void DisplayTopicURL();

    /// Closes every help window. Without a viewer there is none.
    void HelpClose() const;

private:
    using Viewer = HWND WINAPI(HWND owner, LPCWSTR file, UINT command, DWORD_PTR data);

    Viewer* viewer = nullptr;
    std::string file;
    std::string topic;
};
