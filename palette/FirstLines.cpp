#include "palette/FirstLines.h"

#include <algorithm>

namespace {

constexpr std::string_view crLf = "\r\n";
constexpr std::size_t mostText = std::size_t{64} * 1024 * 1024;  // no palette has lines that long

}  // namespace

bool FirstLines::take(std::string_view block) {
    while (!block.empty() && ends < mostCounted) {
        const std::size_t feed = block.find('\n');
        const std::string_view piece = block.substr(0, feed == std::string_view::npos ? feed : feed + 1);
        const char before = piece.size() > 1 ? piece[piece.size() - 2] : last;
        const bool isEnd = feed != std::string_view::npos && before == '\r';
        if (ends < mostKept) text += piece;
        ends += isEnd ? 1 : 0;
        isLineOpen = !isEnd;
        last = piece.back();
        block.remove_prefix(piece.size());
    }
    return ends < mostCounted && text.size() < mostText;
}

std::vector<std::string_view> FirstLines::kept() const {
    std::vector<std::string_view> lines;
    std::string_view rest = text;
    while (!rest.empty() && lines.size() < mostKept) {
        const std::size_t end = std::min(rest.find(crLf), rest.size());
        lines.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + crLf.size(), rest.size()));
    }
    return lines;
}

std::size_t FirstLines::count() const { return std::min(ends + (isLineOpen ? 1 : 0), mostCounted); }
