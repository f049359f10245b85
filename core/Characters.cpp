#include "core/Characters.h"

#include <algorithm>

std::size_t CharacterLength(std::string_view text, std::size_t at, LeadByteTest isLeadByte) {
    const std::size_t length = isLeadByte(text[at]) ? 2 : 1;
    return std::min(length, text.size() - at);
}

std::size_t CharacterCount(std::string_view text, LeadByteTest isLeadByte) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += CharacterLength(text, at, isLeadByte)) ++count;
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count, LeadByteTest isLeadByte) {
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count) end += CharacterLength(text, end, isLeadByte);
    return text.substr(0, end);
}

std::string_view LastCharacter(std::string_view text, LeadByteTest isLeadByte) {
    std::size_t last = 0;
    for (std::size_t at = 0; at < text.size(); at += CharacterLength(text, at, isLeadByte)) last = at;
    return text.substr(last);
}

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}
