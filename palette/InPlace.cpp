#include "palette/InPlace.h"

#include "palette/OpenedFile.h"

namespace {

bool GoTo(const OwnedFile& file, LONGLONG place) {
    LARGE_INTEGER distance{};
    distance.QuadPart = place;
    return ::SetFilePointerEx(file.get(), distance, nullptr, FILE_BEGIN) != FALSE;
}

bool EndsAt(const OwnedFile& file, LONGLONG size) {
    return GoTo(file, size) && ::SetEndOfFile(file.get()) != FALSE;
}

std::string Beginning(const OwnedFile& file, std::size_t size) {
    std::string text(size, '\0');
    DWORD read = 0;
    Check(::ReadFile(file.get(), text.data(), static_cast<DWORD>(size), &read, nullptr) != FALSE);
    text.resize(read);
    return text;
}

bool IsOnDisk(const OwnedFile& file, std::string_view text) {
    return GoTo(file, 0) && HasWritten(file, text) && IsFlushed(file);
}

}  // namespace

// Nobody else may have the file open, so nobody reads a mixture of two texts. Should the program be killed
// just between two of these steps, the new text may stand before the rest of a longer old one; should the
// machine stop, before a part of it. That is why this is the last way of saving.
void WriteInPlace(const std::wstring& path, std::string_view text) {
    constexpr DWORD byNobody = 0;
    const OwnedFile file = OpenedSoon(path, {GENERIC_READ | GENERIC_WRITE, byNobody, OPEN_ALWAYS});
    Check(static_cast<bool>(file));
    LARGE_INTEGER sizeBefore{};
    Check(::GetFileSizeEx(file.get(), &sizeBefore) != FALSE);
    const std::string before = Beginning(file, text.size());
    // Until the new text is on the disk, nothing of the old one is cut off.
    const bool isSaved = IsOnDisk(file, text) && EndsAt(file, static_cast<LONGLONG>(text.size()));
    if (!isSaved) {
        IsOnDisk(file, before);
        EndsAt(file, sizeBefore.QuadPart);
    }
    ::FlushFileBuffers(file.get());
    Check(isSaved);
}
