// Which folder does a file dialog ask Windows for?
#pragma once

#include <string>

/// Newer Windows opens a dialog where the user last was if it is asked for the very text that it was asked
/// for at first. So every later dialog gets the same folder under another spelling.
class InitialFolder {
public:
    /// Another spelling of folder when the first dialog has asked for just that.
    std::string of(const std::string& folder) {
        if (first.empty()) return first = folder;
        if (folder != first) return folder;
        return folder.ends_with('\\') ? folder + '.' : folder + '\\';
    }

private:
    std::string first;
};
