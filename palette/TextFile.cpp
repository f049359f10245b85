#include "palette/TextFile.h"

#include <array>
#include <stdexcept>
#include <vector>

#include "core/PathText.h"
#include "toolkit/platform/Text.h"

namespace {

constexpr DWORD blockSize = 256 * 1024;

void Check(bool hasSucceeded) {
    if (!hasSucceeded) throw std::runtime_error("Windows refused a file");
}

OwnedFile Open(const std::string& path, DWORD access, DWORD sharing) {
    const HANDLE file = ::CreateFileW(Wide(path).c_str(), access, sharing, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    Check(file != INVALID_HANDLE_VALUE);
    return OwnedFile(file);
}

bool IsReadOnly(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesW(Wide(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

/// A file with a new name, deleted unless it takes the place of another; while it is being written, even when
/// the program is ended from outside.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& folder) {
        constexpr UINT numbers = 0xFFFF;
        // A file that already has the name may belong to another copy of the program.
        for (UINT attempt = 0; !file && attempt < numbers; ++attempt) {
            // Given 0, Windows would choose the number and create a file that stays.
            const UINT number = 1 + (::GetCurrentProcessId() + attempt) % numbers;
            Check(::GetTempFileNameW(Wide(folder).c_str(), L"hvx", number, name.data()) != 0);
            const HANDLE created = ::CreateFileW(name.data(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                                 FILE_ATTRIBUTE_NORMAL, nullptr);
            Check(created != INVALID_HANDLE_VALUE || ::GetLastError() == ERROR_FILE_EXISTS);
            if (created != INVALID_HANDLE_VALUE) file = OwnedFile(created);
        }
        Check(static_cast<bool>(file));
        goWhenClosed(true);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        file = {};
        if (!isMoved) ::DeleteFileW(name.data());
    }

    void write(std::string_view text) const {
        DWORD written = 0;
        Check(::WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) !=
              FALSE);
        Check(written == text.size());
        Check(::FlushFileBuffers(file.get()) != FALSE);
    }

    void takePlaceOf(const std::string& path) {
        // Virus scanners and indexers open a file for a moment; meanwhile it cannot be replaced.
        constexpr int attempts = 10;
        constexpr DWORD pause = 20;
        goWhenClosed(false);
        file = {};
        for (int attempt = 0; attempt < attempts && !isMoved; ++attempt) {
            if (attempt > 0) ::Sleep(pause);
            isMoved = moveTo(path);
        }
        Check(isMoved);
    }

private:
    void goWhenClosed(bool goes) const {
        FILE_DISPOSITION_INFO disposition{goes};
        ::SetFileInformationByHandle(file.get(), FileDispositionInfo, &disposition, sizeof disposition);
    }
    bool moveTo(const std::string& path) const {
        constexpr DWORD inOneStep = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        return ::MoveFileExW(name.data(), Wide(path).c_str(), inOneStep) != FALSE;
    }

    std::array<wchar_t, MAX_PATH> name{};
    OwnedFile file;
    bool isMoved = false;
};

}  // namespace

OwnedFile OpenForReading(const std::string& path) {
    return Open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
}

void ReadBlocks(const OwnedFile& file, const std::function<bool(std::string_view block)>& take) {
    std::vector<char> block(blockSize);
    DWORD size = 0;
    do {
        Check(::ReadFile(file.get(), block.data(), blockSize, &size, nullptr) != FALSE);
    } while (size > 0 && take({block.data(), size}));
}

void ReplaceTextFile(const std::string& path, std::string_view text) {
    // Windows lets some users replace a read-only file.
    Check(!IsReadOnly(path));
    const std::string folder(FolderPart(path));
    TemporaryFile temporary(folder.empty() ? "." : folder);
    temporary.write(text);
    temporary.takePlaceOf(path);
}
