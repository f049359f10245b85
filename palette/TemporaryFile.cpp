#include "palette/TemporaryFile.h"

#include "palette/FilePaths.h"

TemporaryFile::TemporaryFile(std::wstring_view folder, DWORD attributes) {
    constexpr int attempts = 32;
    DWORD error = ERROR_FILE_EXISTS;
    // A name may be taken by what another copy of the program has left behind, or by a file that was deleted
    // while others have it open: Windows calls that a denied access.
    for (int attempt = 0; !file && attempt < attempts; ++attempt) {
        if (error != ERROR_FILE_EXISTS && error != ERROR_ACCESS_DENIED) break;
        make(std::wstring(folder) + TemporaryName(::GetCurrentProcessId(), attempt), attributes);
        error = ::GetLastError();
    }
    // On a full disk any other way of writing would endanger the old text.
    Check(file || error != ERROR_DISK_FULL);
    if (file) goWhenClosed(true);
}

TemporaryFile::~TemporaryFile() {
    file = {};
    if (!name.empty() && !isMoved) ::DeleteFileW(name.c_str());
}

void TemporaryFile::make(const std::wstring& wanted, DWORD attributes) {
    constexpr DWORD byNobody = 0;
    file = Opened(wanted, {GENERIC_WRITE | DELETE, byNobody, CREATE_NEW, attributes});
    if (file) name = wanted;
}

void TemporaryFile::write(std::string_view text) {
    Check(HasWritten(file, text) && IsFlushed(file));
    goWhenClosed(false);
    file = {};
}

bool TemporaryFile::takesPlaceOf(const std::wstring& target) {
    constexpr DWORD inOneStep = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    isMoved = Succeeds([&] { return ::MoveFileExW(name.c_str(), target.c_str(), inOneStep) != FALSE; });
    return isMoved;
}

void TemporaryFile::goWhenClosed(bool goes) const {
    FILE_DISPOSITION_INFO disposition{goes};
    ::SetFileInformationByHandle(file.get(), FileDispositionInfo, &disposition, sizeof disposition);
}
