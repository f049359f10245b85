#include "palette/TextFile.h"

#include <vector>

#include "palette/FilePaths.h"
#include "palette/FileTarget.h"
#include "palette/InPlace.h"
#include "palette/KeptTraits.h"
#include "palette/TemporaryFile.h"
#include "toolkit/platform/Text.h"

namespace {

constexpr DWORD blockSize = 256 * 1024;

/// Puts a new file in the place of the old one. Whenever the program may be killed, the one or the other is
/// there, whole: Windows' own ReplaceFile takes two steps for that, and between them there is none.
bool HasReplaced(const FileTarget& target, std::string_view text) {
    if (target.kind == FileTarget::Kind::writable) return false;
    TemporaryFile temporary(FolderOf(target.path), KeptAttributes(target.attributes));
    if (!temporary) return false;
    temporary.write(text);
    const bool isAlike =
        target.kind == FileTarget::Kind::absent || HasTakenOver(temporary.path(), target.path);
    return isAlike && temporary.takesPlaceOf(target.path);
}

}  // namespace

OwnedFile OpenForReading(const std::string& path) {
    OwnedFile file = Opened(Wide(path), {GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE});
    Check(static_cast<bool>(file));
    return file;
}

void ReadBlocks(const OwnedFile& file, const std::function<bool(std::string_view block)>& take) {
    std::vector<char> block(blockSize);
    DWORD size = 0;
    do {
        Check(::ReadFile(file.get(), block.data(), blockSize, &size, nullptr) != FALSE);
    } while (size > 0 && take({block.data(), size}));
}

void ReplaceTextFile(const std::string& path, std::string_view text) {
    const FileTarget target = FindTarget(Wide(path));
    if (HasReplaced(target, text)) return;
    Check(target.kind != FileTarget::Kind::absent);
    WriteInPlace(target.path, text);
}
