#include "core/PathText.h"

std::size_t LastPlaceOf(std::string_view delimiter, std::string_view text, LeadByteTest isLeadByte) {
    std::size_t last = std::string_view::npos;
    if (delimiter.empty()) return last;
    for (std::size_t at = 0; at < text.size(); at += CharacterLength(text, at, isLeadByte)) {
        if (text.substr(at).starts_with(delimiter)) last = at;
    }
    return last;
}

std::string_view GetFileNamePart(std::string_view text, std::string_view delimiter, LeadByteTest isLeadByte) {
    const std::size_t last = LastPlaceOf(delimiter, text, isLeadByte);
    return last == std::string_view::npos ? text : text.substr(last + delimiter.size());
}

std::string_view FolderPart(std::string_view path, LeadByteTest isLeadByte) {
    return path.substr(0, path.size() - GetFileNamePart(path, "\\", isLeadByte).size());
}

std::string WithExtension(std::string_view path, LeadByteTest isLeadByte) {
    const std::string_view name = GetFileNamePart(path, "\\", isLeadByte);
    const bool hasExtension = LastPlaceOf(".", name, isLeadByte) != std::string_view::npos;
    return std::string(path) + (hasExtension ? "" : ".txt");
}
