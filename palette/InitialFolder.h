// Which folder does a file dialog ask Windows for?
#pragma once

#include <string>

/// Newer Windows opens a dialog where the user last was if it is asked for the very text that it was asked
/// for the first time, in this run or ever. So each run spells folders in one of 16 ways, and every later
/// dialog in another way than the first.
class InitialFolder {
public:
    /// The number tells runs apart; Windows' numbers of processes are multiples of four.
    explicit InitialFolder(unsigned process) : dots(1 + process / 4 % 16) {}

    /// Another spelling of the folder, unless that would be too long for a file dialog.
    std::string of(const std::string& folder) {
        std::string asked = Spelt(folder, dots);
        if (asked == first) asked = Spelt(folder, dots + 1);
        if (first.empty()) first = asked;
        return asked;
    }

private:
    static std::string Spelt(const std::string& folder, unsigned dots) {
        constexpr std::size_t longest = 259;
        std::string spelt = folder.ends_with('\\') ? folder.substr(0, folder.size() - 1) : folder;
        while (dots-- > 0) spelt += "\\.";
        return spelt.size() <= longest ? spelt : folder;
    }

    unsigned dots;
    std::string first;
};
