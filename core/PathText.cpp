#include "core/PathText.h"

#include <cstddef>

std::string_view GetFileNamePart(std::string_view text, std::string_view delimiter) {
    const std::size_t last = delimiter.empty() ? std::string_view::npos : text.rfind(delimiter);
    return last == std::string_view::npos ? text : text.substr(last + delimiter.size());
}

std::string_view FolderPart(std::string_view path) {
    return path.substr(0, path.size() - GetFileNamePart(path, "\\").size());
}

std::string WithExtension(std::string_view path) {
    const bool hasExtension = GetFileNamePart(path, "\\").find('.') != std::string_view::npos;
    return std::string(path) + (hasExtension ? "" : ".txt");
}
