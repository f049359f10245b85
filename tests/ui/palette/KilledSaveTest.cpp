// Is a palette torn when the program is ended at any moment of a save? One test for each way of saving.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>

#include "tests/driver/Killer.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/ReadOnlyFolder.h"

namespace {

/// The program runs in the folder of the palette, as it does after a file dialog there.
class EndWhileSaving : public PaletteTest {
protected:
    explicit EndWhileSaving(std::string folder = otherFolder) : folder(std::move(folder)) {}

    void SetUp() override {
        PaletteTest::SetUp();
        ::GetCurrentDirectoryA(testsFolder.size(), testsFolder.data());
        ASSERT_TRUE(::CopyFileA(HUEVOX_EXE, (folder + '\\' + HUEVOX_EXE).c_str(), FALSE));
        ::SetCurrentDirectoryA(folder.c_str());
    }
    void TearDown() override {
        ::SetCurrentDirectoryA(testsFolder.data());
        PaletteTest::TearDown();
    }

    /// The title tells the program where the palette is saved.
    static void Save(const Huevox& huevox, int times) {
        ::SendMessageA(huevox.window(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Huevox - mine.txt"));
        for (int time = 0; time < times; ++time)
            ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuFileSave, 0);
    }
    std::string path() const { return folder + "\\mine.txt"; }
    std::string content() const { return ContentOf(path()); }

    /// How long an undisturbed save takes; keeps what the file holds afterwards.
    Milliseconds timeOfSave() {
        WriteContent(path(), before);
        const Huevox huevox;
        const Milliseconds start = NowInMilliseconds();
        Save(huevox, 1);
        // While the file is being replaced it cannot be opened.
        EXPECT_TRUE(Eventually([&] {
            after = content();
            return !after.empty() && after != before;
        }));
        return NowInMilliseconds() - start;
    }
    std::string contentAfterKill(Killer& killer, Milliseconds span) const {
        constexpr int savesInARow = 50;
        WriteContent(path(), before);
        const Huevox huevox;
        Save(huevox, savesInARow);
        killer.kill(huevox, span);
        return content();
    }

    inline static const std::string before = PaletteOf("mine", "1,2,3");
    std::string after;
    std::string folder;

private:
    std::array<char, MAX_PATH> testsFolder{};
};

class EndWhileCreating : public EndWhileSaving {
protected:
    /// Only the first save makes the file, so there is no other.
    bool isThereAfterKill(Killer& killer, Milliseconds span) const {
        ::DeleteFileA(path().c_str());
        const Huevox huevox;
        Save(huevox, 1);
        killer.kill(huevox, span);
        return Exists(path());
    }
};

class EndWhileWritingInPlace : public EndWhileSaving {
protected:
    using EndWhileSaving::EndWhileSaving;

    /// Never shorter than the old text was, and each byte is that of the old text or of the new one.
    bool isMixture(const std::string& content) const {
        if (content.size() < std::min(before.size(), after.size())) return false;
        for (std::size_t at = 0; at < content.size(); ++at) {
            const bool isOld = at < before.size() && content[at] == before[at];
            const bool isNew = at < after.size() && content[at] == after[at];
            if (!isOld && !isNew) return false;
        }
        return true;
    }
    void killWhileWriting(Milliseconds span) const {
        const int kills = CountKills(4);
        Killer killer;
        int saved = 0;
        int kept = 0;
        for (int kill = 0; kill < kills; ++kill) {
            const std::string content = contentAfterKill(killer, span);
            ASSERT_TRUE(isMixture(content)) << "kill " << kill << '\n' << content;
            saved += content == after ? 1 : 0;
            kept += content == before ? 1 : 0;
        }
        std::printf("%d kills while a file was written in place: none empty, %d new, %d old\n", kills, saved,
                    kept);
    }
};

/// The new file has been written beside the old one, but may not take its place.
class ImmovableFileAtTheEnd : public EndWhileWritingInPlace {
protected:
    ImmovableFileAtTheEnd() : EndWhileWritingInPlace(Folder()) {}

    /// Leaves the folder as it was, for the tests that find it next.
    void TearDown() override {
        EndWhileWritingInPlace::TearDown();
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::error_code ignored;
            if (entry.path() != path()) std::filesystem::remove(entry.path(), ignored);
        }
    }

private:
    static std::string Folder() {
        const std::string file = std::getenv("HUEVOX_IMMOVABLE_FILE");
        return file.substr(0, file.rfind('\\'));
    }
};

}  // namespace

TEST_F(EndWhileSaving, LeavesTheOldPaletteOrTheNewOne) {
    const Milliseconds span = 3 * timeOfSave();
    const int kills = CountKills(16);
    Killer killer;
    int saved = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const std::string content = contentAfterKill(killer, span);
        ASSERT_TRUE(content == before || content == after) << "kill " << kill << '\n' << content;
        saved += content == after ? 1 : 0;
    }
    std::printf("%d kills during saves: none torn, %d new, %d old, %d other files left\n", kills, saved,
                kills - saved, CountFiles(otherFolder, "*.tmp"));
}

TEST_F(EndWhileCreating, LeavesNoPaletteOrAWholeOne) {
    // The file is there well before the time is over that it takes until others can read it.
    const Milliseconds span = timeOfSave() / 2;
    const int kills = CountKills(4);
    Killer killer;
    int saved = 0;
    for (int kill = 0; kill < kills; ++kill) {
        if (!isThereAfterKill(killer, span)) continue;
        ++saved;
        ASSERT_EQ(content(), after) << "kill " << kill;
    }
    std::printf("%d kills while a file was made: none torn, %d new, %d none, %d other files left\n", kills,
                saved, kills - saved, CountFiles(otherFolder, "*.tmp"));
}

TEST_F(EndWhileWritingInPlace, EmptiesNoFile) {
    const Milliseconds span = 3 * timeOfSave();
    const ReadOnlyFolder readOnly(folder);
    killWhileWriting(span);
}

TEST_F(ImmovableFileAtTheEnd, IsNeverEmpty) { killWhileWriting(3 * timeOfSave()); }
