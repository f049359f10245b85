#include "palette/TextFile.h"

#include <array>
#include <stdexcept>
#include <vector>

#include "support/PathText.h"
#include "toolkit/CodePage.h"

namespace {

constexpr DWORD blockSize = 256 * 1024;

void Check(bool hasSucceeded) {
    if (!hasSucceeded) throw std::runtime_error("the platform refused a file");
}

OwnedFile Open(const std::string& path, DWORD access, DWORD sharing) {
    const HANDLE file =
        ::CreateFileA(path.c_str(), access, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    Check(file != INVALID_HANDLE_VALUE);
    return OwnedFile(file);
}

bool IsReadOnly(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

/// An empty file of a new name, which goes unless it takes the place of another.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& folder) {
        Check(::GetTempFileNameA(folder.c_str(), "hvx", 0, name.data()) != 0);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!isMoved) ::DeleteFileA(name.data());
    }

    void write(std::string_view text) const {
        const OwnedFile file = Open(name.data(), GENERIC_WRITE, 0);
        DWORD written = 0;
        Check(::WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) !=
              FALSE);
        Check(written == text.size());
        Check(::FlushFileBuffers(file.get()) != FALSE);
    }

    void takePlaceOf(const std::string& path) {
        // Scanners and searches open a file for a moment; meanwhile it cannot be replaced.
        constexpr int attempts = 10;
        constexpr DWORD pause = 20;
        for (int attempt = 0; attempt < attempts && !isMoved; ++attempt) {
            if (attempt > 0) ::Sleep(pause);
            isMoved = moveTo(path);
        }
        Check(isMoved);
    }

private:
    bool moveTo(const std::string& path) const {
        constexpr DWORD inOneStep = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        return ::MoveFileExA(name.data(), path.c_str(), inOneStep) != FALSE;
    }

    std::array<char, MAX_PATH> name{};
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

void ReplaceText(const std::string& path, std::string_view text) {
    // The platform lets some users replace a file that nobody may write.
    Check(!IsReadOnly(path));
    const std::string folder(FolderPart(path, IsLeadByte));
    TemporaryFile temporary(folder.empty() ? "." : folder);
    temporary.write(text);
    temporary.takePlaceOf(path);
}
