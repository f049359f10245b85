// How is text saved where Windows, the file system or the disk refuses one step?
#include <string_view>

#include "tests/program/ReplacedFunction.h"
#include "tests/program/SavedFolder.h"

namespace {

using SavingWays = SavedFolder;

bool IsTemporary(LPCWSTR path) { return std::wstring_view(path).ends_with(L".tmp"); }

/// Counts how often a new file is put in the place of another.
auto Counting(int& moves) {
    return ReplacedFunction(&::MoveFileExW, [&moves](auto original, auto... arguments) {
        ++moves;
        return original(arguments...);
    });
}

/// Refuses the first temporary names, with that reason.
auto RefusingNames(int count, DWORD reason) {
    return ReplacedFunction(&::CreateFileW, [=](auto original, LPCWSTR path, auto... rest) mutable {
        if (!IsTemporary(path) || count-- <= 0) return original(path, rest...);
        Refused(reason);
        return INVALID_HANDLE_VALUE;
    });
}

/// A file system that knows no replacing step.
auto RefusingMoves() {
    return ReplacedFunction(&::MoveFileExW, [](auto...) { return Refused(ERROR_NOT_SUPPORTED); });
}

auto FlushThatFailsWith(DWORD reason) {
    return ReplacedFunction(&::FlushFileBuffers, [=](auto...) { return Refused(reason); });
}

/// On it nobody can say where a file really is.
auto VolumeWithoutALetter() {
    return ReplacedFunction(&::GetFinalPathNameByHandleW, [](auto...) {
        Refused(ERROR_PATH_NOT_FOUND);
        return DWORD{0};
    });
}
auto SavedFileAsLink() {
    return ReplacedFunction(&::GetFileAttributesW, [](auto original, LPCWSTR path) {
        const bool isSavedFile = std::wstring_view(path).ends_with(L"mine.txt");
        return isSavedFile ? DWORD{FILE_ATTRIBUTE_REPARSE_POINT} : original(path);
    });
}

/// From the second writing on, half of the text reaches the file. The first one is that of the temporary
/// file.
auto DiskThatGetsFull(int failures) {
    return ReplacedFunction(&::WriteFile, [=, writings = 0](auto original, HANDLE file, LPCVOID text,
                                                            DWORD size, auto... rest) mutable {
        const bool fails = ++writings > 1 && failures-- > 0;
        const BOOL hasWritten = original(file, text, fails ? size / 2 : size, rest...);
        return fails ? Refused(ERROR_DISK_FULL) : hasWritten;
    });
}

}  // namespace

TEST_F(SavingWays, PutANewFileInThePlaceOfTheOldOne) {
    int moves = 0;
    const auto counting = Counting(moves);
    ExpectSaved();
    EXPECT_EQ(moves, 1);
}

TEST_F(SavingWays, ANewFileMayHaveToTryFurtherNames) {
    int moves = 0;
    const auto counting = Counting(moves);
    const auto refusing = RefusingNames(3, ERROR_ACCESS_DENIED);
    ExpectSaved();
    EXPECT_EQ(moves, 1);
}

TEST_F(SavingWays, WithoutAnyNewFileTheOldOneIsWritten) {
    int moves = 0;
    const auto counting = Counting(moves);
    const auto refusing = RefusingNames(1000, ERROR_ACCESS_DENIED);
    ExpectSaved();
    EXPECT_EQ(moves, 0);
}

TEST_F(SavingWays, OnAFullDiskTheOldFileIsLeftAlone) {
    const auto refusing = RefusingNames(1000, ERROR_DISK_FULL);
    ExpectRefused();
}

TEST_F(SavingWays, WithoutAReplacingStepTheOldFileIsWritten) {
    const auto refusing = RefusingMoves();
    ExpectSaved();
}

TEST_F(SavingWays, WithoutAReplacingStepALongerTextIsWrittenToo) {
    WriteContent(savedFile, "short");
    const auto refusing = RefusingMoves();
    ExpectSaved();
}

TEST_F(SavingWays, WithoutAReplacingStepAFileThatIsOpenElsewhereIsLeftAlone) {
    const auto refusing = RefusingMoves();
    const OwnedFile elsewhere = Opened(L"C:\\Saved\\mine.txt", {GENERIC_READ, sharedByAll});
    ExpectRefused();
}

TEST_F(SavingWays, ADiskThatGetsFullWhileTheOldFileIsWrittenGivesItBack) {
    const auto refusing = RefusingMoves();
    const auto full = DiskThatGetsFull(1);
    ExpectRefused();
}

TEST_F(SavingWays, AShortOldFileIsGivenBackAsShortAsItWas) {
    WriteContent(savedFile, "short");
    const auto refusing = RefusingMoves();
    const auto full = DiskThatGetsFull(1);
    EXPECT_THROW(ReplaceTextFile(savedFile, changed), std::runtime_error);
    EXPECT_EQ(ContentOf(savedFile), "short");
}

TEST_F(SavingWays, ADiskThatFailsWhileTheOldFileIsWrittenGivesItBack) {
    const auto refusing = RefusingMoves();
    const auto broken =
        ReplacedFunction(&::FlushFileBuffers, [flushes = 0](auto original, HANDLE file) mutable {
            return ++flushes == 2 ? Refused(ERROR_IO_DEVICE) : original(file);
        });
    ExpectRefused();
}

TEST_F(SavingWays, AnOldFileThatCannotBeCutOffIsGivenBack) {
    const auto refusing = RefusingMoves();
    const auto uncut =
        ReplacedFunction(&::SetEndOfFile, [](auto...) { return Refused(ERROR_ACCESS_DENIED); });
    ExpectRefused();
}

TEST_F(SavingWays, AFileSystemThatKnowsNoFlushIsNoReasonToRefuse) {
    for (const DWORD reason : {ERROR_INVALID_FUNCTION, ERROR_NOT_SUPPORTED, ERROR_INVALID_PARAMETER}) {
        WriteContent(savedFile, old);
        const auto refusing = FlushThatFailsWith(reason);
        int moves = 0;
        const auto counting = Counting(moves);
        ExpectSaved();
        EXPECT_EQ(moves, 1) << reason;
    }
}

TEST_F(SavingWays, AFlushThatFailsLeavesTheOldFile) {
    const auto broken = FlushThatFailsWith(ERROR_IO_DEVICE);
    ExpectRefused();
}

TEST_F(SavingWays, AFileThatMustNotGoIsWritten) {
    int moves = 0;
    const auto counting = Counting(moves);
    const auto refusing =
        ReplacedFunction(&::CreateFileW, [](auto original, LPCWSTR path, DWORD access, auto... rest) {
            if ((access & DELETE) == 0) return original(path, access, rest...);
            EXPECT_FALSE(IsTemporary(path));
            Refused(ERROR_ACCESS_DENIED);
            return INVALID_HANDLE_VALUE;
        });
    ExpectSaved();
    EXPECT_EQ(moves, 0);
}

TEST_F(SavingWays, AFileOnAVolumeWithoutALetterIsReplacedByItsGivenName) {
    int moves = 0;
    const auto counting = Counting(moves);
    const auto untold = VolumeWithoutALetter();
    ExpectSaved();
    EXPECT_EQ(moves, 1);
}

TEST_F(SavingWays, ALinkToAVolumeWithoutALetterIsWrittenThrough) {
    int moves = 0;
    const auto counting = Counting(moves);
    const auto untold = VolumeWithoutALetter();
    const auto link = SavedFileAsLink();
    ExpectSaved();
    EXPECT_EQ(moves, 0);
}

TEST_F(SavingWays, ALinkThatLeadsNowhereIsWrittenThrough) {
    int moves = 0;
    const auto counting = Counting(moves);
    std::filesystem::remove(savedFile);
    const auto link = SavedFileAsLink();
    ExpectSaved();
    EXPECT_EQ(moves, 0);
}

TEST_F(SavingWays, ANewFileThatCannotBeMadeIsRefused) {
    std::filesystem::remove(savedFile);
    const auto refusing = RefusingMoves();
    EXPECT_THROW(ReplaceTextFile(savedFile, changed), std::runtime_error);
    EXPECT_TRUE(std::filesystem::is_empty(savedFolder));
}

TEST_F(SavingWays, AFileThatIsOpenElsewhereForAMomentIsWaitedFor) {
    OwnedFile elsewhere = Opened(L"C:\\Saved\\mine.txt", {GENERIC_READ, FILE_SHARE_READ});
    const auto waiting = ReplacedFunction(&::Sleep, [&](auto...) { elsewhere = {}; });
    ExpectSaved();
}

TEST_F(SavingWays, ADeviceIsNoFile) {
    const auto device = ReplacedFunction(&::GetFileType, [](auto...) { return DWORD{FILE_TYPE_CHAR}; });
    ExpectRefused();
}
