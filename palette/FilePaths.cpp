#include "palette/FilePaths.h"

std::wstring WithoutLimit(std::wstring_view fullPath) {
    constexpr std::wstring_view share = L"\\\\";
    const bool isTakenLiterally = fullPath.starts_with(L"\\\\?\\") || fullPath.starts_with(L"\\\\.\\");
    if (isTakenLiterally) return std::wstring(fullPath);
    if (!fullPath.starts_with(share)) return L"\\\\?\\" + std::wstring(fullPath);
    return L"\\\\?\\UNC\\" + std::wstring(fullPath.substr(share.size()));
}

std::wstring_view FolderOf(std::wstring_view fullPath) {
    return fullPath.substr(0, fullPath.rfind(L'\\') + 1);
}

std::wstring TemporaryName(unsigned long program, int attempt) {
    const std::string name = "hvx" + std::to_string(program) + '-' + std::to_string(attempt) + ".tmp";
    return {name.begin(), name.end()};
}
