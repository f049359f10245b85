// Is a palette ever lost when the disk or another program refuses?
#include <cstdlib>
#include <utility>

#include "tests/driver/Below.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/ReadOnlyFolder.h"

namespace {

class RefusedSaving : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        WriteContent(OtherPathOf("mine.txt"), before);
    }

    static void OpenAndChange(const Huevox& huevox) {
        OpenPalette(huevox, OtherPathOf("mine.txt"));
        huevox.retype(Name(1), "another");
        ChangeColor(huevox);
    }
    /// Saves in vain, and expects everything to be as it was: the file, the title, the change, the highlight.
    static void ExpectRefusal(const Huevox& huevox) {
        PressSave();
        CloseMessage(huevox, couldNotSave);
        EXPECT_EQ(huevox.title(), "Huevox - mine.txt");
        EXPECT_BECOMES(huevox.backColor(Name(0)), highlight);
        PressNew();
        AnswerQuestion(huevox, IDCANCEL);
        EXPECT_EQ(CountFiles(otherFolder, "*.tmp"), 0);
    }
    static void ExpectSaving(const Huevox& huevox) {
        PressSave();
        // While the file is being replaced it cannot be opened.
        EXPECT_TRUE(Eventually([] {
            const std::string content = ContentOf(OtherPathOf("mine.txt"));
            return !content.empty() && content != before;
        }));
        EXPECT_EQ(huevox.dialogCount(), 0);
    }

    static void KillWhileSaving() {
        const Huevox huevox;
        OpenAndChange(huevox);
        PressSave();
        const auto isWriting = [] { return CountFiles(otherFolder, "*.tmp") > 0; };
        const auto isSaved = [] { return ContentOf(OtherPathOf("mine.txt")) != before; };
        // Not a millisecond is to be lost between the sight of the new file and the end.
        while (!isWriting() && !isSaved()) continue;
        huevox.kill();
    }

    inline static const std::string before = PaletteOf("mine", "1,2,3");
};

/// A file that its owner, the user, may only read, for as long as the value lives. It has no attribute that
/// says so, because others may write it.
class FileOfOthers {
public:
    explicit FileOfOthers(std::string path) : path(std::move(path)) {
        setMode("0466", false);
        EXPECT_EQ(::GetFileAttributesA(this->path.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    }
    FileOfOthers(const FileOfOthers&) = delete;
    FileOfOthers& operator=(const FileOfOthers&) = delete;
    ~FileOfOthers() { setMode("0666", true); }

private:
    void setMode(const std::string& mode, bool isWritable) const {
        const std::wstring wide(path.begin(), path.end());
        RunBelow("chmod", mode + " \"" + SystemPathOf(wide.c_str()) + '"');
        EXPECT_TRUE(Eventually([&] { return isOpenedForWriting() == isWritable; })) << path;
    }
    bool isOpenedForWriting() const {
        const HANDLE file =
            ::CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        if (file != INVALID_HANDLE_VALUE) ::CloseHandle(file);
        return file != INVALID_HANDLE_VALUE;
    }

    std::string path;
};

class FullDisk : public UiTest {
protected:
    void TearDown() override {
        ::DeleteFileA((folder + "\\filler").c_str());
        UiTest::TearDown();
    }
    void fill() const { WriteContent(folder + "\\filler", std::string(1'000'000, 'x')); }

    const std::string folder = std::getenv("HUEVOX_FULL_DISK");
};

}  // namespace

TEST_F(RefusedSaving, ByAReadOnlyFile) {
    const Huevox huevox;
    OpenAndChange(huevox);
    {
        const ReadOnlyFile refusing(OtherPathOf("mine.txt"));
        ExpectRefusal(huevox);
        EXPECT_EQ(ContentOf(OtherPathOf("mine.txt")), before);
    }
    ExpectSaving(huevox);
}

TEST_F(RefusedSaving, ByAFileThatTheUserMayNotWrite) {
    const Huevox huevox;
    OpenAndChange(huevox);
    {
        const FileOfOthers refusing(OtherPathOf("mine.txt"));
        ExpectRefusal(huevox);
        EXPECT_EQ(ContentOf(OtherPathOf("mine.txt")), before);
    }
    ExpectSaving(huevox);
}

TEST_F(RefusedSaving, OfANewFileByAReadOnlyFolder) {
    const Huevox huevox;
    OpenAndChange(huevox);
    const ReadOnlyFolder refusing(otherFolder);
    ChooseSaveAs();
    ChoosePath(huevox, saveTitle, OtherPathOf("new.txt"));
    CloseMessage(huevox, couldNotSave);
    EXPECT_EQ(huevox.title(), "Huevox - mine.txt");
    EXPECT_FALSE(Exists(OtherPathOf("new.txt")));
}

TEST_F(RefusedSaving, ByAnotherProgramThatHasLockedTheFile) {
    const Huevox huevox;
    OpenAndChange(huevox);
    {
        const LockedFile locked(OtherPathOf("mine.txt"));
        ExpectRefusal(huevox);
    }
    EXPECT_EQ(ContentOf(OtherPathOf("mine.txt")), before);
    ExpectSaving(huevox);
}

TEST_F(RefusedSaving, ByAFolderThatIsGone) {
    const Huevox huevox;
    OpenAndChange(huevox);
    RemoveFolderBelow(otherFolder);
    ExpectRefusal(huevox);
    ChooseSaveAs();
    ChoosePath(huevox, saveTitle, PathOf("rescued.txt"));
    EXPECT_BECOMES(huevox.title(), "Huevox - rescued.txt");
    EXPECT_NE(ContentOf(PathOf("rescued.txt")).find("another"), std::string::npos);
}

TEST_F(RefusedSaving, ByAFolderOfThatName) {
    const Huevox huevox;
    OpenAndChange(huevox);
    ::DeleteFileA(OtherPathOf("mine.txt").c_str());
    ::CreateDirectoryA(OtherPathOf("mine.txt").c_str(), nullptr);
    ExpectRefusal(huevox);
}

TEST_F(RefusedSaving, InSaveAsKeepsTheTitle) {
    WriteContent(PathOf("theirs.txt"), "theirs");
    const ReadOnlyFile refusing(PathOf("theirs.txt"));
    const Huevox huevox;
    OpenAndChange(huevox);
    ChooseSaveAs();
    TypePath(huevox, saveTitle, PathOf("theirs.txt"));
    AnswerReplacing(huevox, IDYES);
    CloseMessage(huevox, couldNotSave);
    EXPECT_EQ(huevox.title(), "Huevox - mine.txt");
    EXPECT_EQ(ContentOf(PathOf("theirs.txt")), "theirs");
}

TEST_F(RefusedSaving, ByItsOwnSuddenEndLeavesAWholeFile) {
    // What the file holds after a save that nothing disturbs.
    {
        const Huevox huevox;
        OpenAndChange(huevox);
        ExpectSaving(huevox);
    }
    const std::string after = ContentOf(OtherPathOf("mine.txt"));
    int killedWhileWriting = 0;
    for (int round = 0; round < 4; ++round) {
        WriteContent(OtherPathOf("mine.txt"), before);
        KillWhileSaving();
        killedWhileWriting += CountFiles(otherFolder, "*.tmp");
        const std::string content = ContentOf(OtherPathOf("mine.txt"));
        EXPECT_TRUE(content == before || content == after) << round << '\n' << content;
        ::DeleteFileA(OtherPathOf("mine.txt").c_str());
    }
    RecordProperty("killed while writing", killedWhileWriting);
}

TEST_F(FullDisk, LeavesTheOldFileAndTheChange) {
    const std::string before = PaletteOf("mine", "1,2,3");
    WriteContent(folder + "\\mine.txt", before);
    const Huevox huevox;
    OpenPalette(huevox, folder + "\\mine.txt");
    ChangeColor(huevox);
    fill();
    PressSave();
    CloseMessage(huevox, couldNotSave);
    EXPECT_EQ(ContentOf(folder + "\\mine.txt"), before);
    EXPECT_EQ(huevox.title(), "Huevox - mine.txt");
    EXPECT_EQ(CountFiles(folder, "*.tmp"), 0);
    PressNew();
    AnswerQuestion(huevox, IDCANCEL);
}

TEST_F(FullDisk, LeavesAFileThatIsWrittenWhereItIs) {
    WriteContent(folder + "\\empty.txt", "");
    fill();
    const ReadOnlyFolder withoutNewFiles(folder);
    const Huevox huevox;
    PressSave();
    TypePath(huevox, saveTitle, folder + "\\empty.txt");
    AnswerReplacing(huevox, IDYES);
    CloseMessage(huevox, couldNotSave);
    EXPECT_EQ(ContentOf(folder + "\\empty.txt"), "");
    EXPECT_EQ(huevox.title(), "Huevox - New palette");
}
