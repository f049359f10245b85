#include "palette/OpenedFile.h"

#include <stdexcept>

void Check(bool hasSucceeded) {
    if (!hasSucceeded) throw std::runtime_error("Windows refused a file");
}

OwnedFile Opened(const std::wstring& path, const Opening& opening) {
    const HANDLE file = ::CreateFileW(path.c_str(), opening.access, opening.sharing, nullptr,
                                      opening.creation, opening.attributes, nullptr);
    return file == INVALID_HANDLE_VALUE ? OwnedFile() : OwnedFile(file);
}

OwnedFile OpenedSoon(const std::wstring& path, const Opening& opening) {
    OwnedFile file;
    Succeeds([&] {
        file = Opened(path, opening);
        return file || ::GetLastError() != ERROR_SHARING_VIOLATION;
    });
    return file;
}

bool HasWritten(const OwnedFile& file, std::string_view text) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(text.size());
    return ::WriteFile(file.get(), text.data(), size, &written, nullptr) && written == size;
}

bool IsFlushed(const OwnedFile& file) {
    if (::FlushFileBuffers(file.get())) return true;
    // Some file systems, above all those of networks, know no flush. Nothing better can be done there.
    const DWORD error = ::GetLastError();
    return error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED ||
           error == ERROR_INVALID_PARAMETER || error == ERROR_CALL_NOT_IMPLEMENTED;
}
