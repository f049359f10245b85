// Which lines of a long file does the palette reader need?
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Takes a text block by block, keeps its first lines and counts all of them. Only CR LF ends a line; what
/// follows the last CR LF is a line unless it is empty.
class FirstLines {
public:
    FirstLines(std::size_t mostKept, std::size_t mostCounted)
        : mostKept(mostKept), mostCounted(mostCounted) {}

    /// Takes the next block. False once nothing that follows can make a difference.
    bool take(std::string_view block);

    /// The kept lines, valid until this value takes another block or ends.
    std::vector<std::string_view> kept() const;
    /// How many lines there are, at most mostCounted.
    std::size_t count() const;

private:
    std::size_t mostKept;
    std::size_t mostCounted;
    std::string text;
    std::size_t ends = 0;
    char last = '\0';
    bool isLineOpen = false;  ///< something follows the last end
};
