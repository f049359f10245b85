// Is anything torn or unusable when the program is ended at any moment?
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "tests/driver/Figures.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/ReadOnlyFolder.h"

namespace {

using Milliseconds = double;

/// As often as HUEVOX_KILLS says, or a share that every run of the tests can afford.
int CountKills(int share) {
    const char* wanted = std::getenv("HUEVOX_KILLS");
    return wanted ? std::atoi(wanted) : share;
}

/// Ends the program at a random moment within a span from now on.
class Killer {
public:
    void kill(const Huevox& huevox, Milliseconds span) {
        const Milliseconds end = NowInMilliseconds() + span * std::uniform_real_distribution<>(0, 1)(random);
        while (NowInMilliseconds() < end) continue;
        huevox.kill();
    }

private:
    std::mt19937 random{20261121};
};

/// The program runs in the folder of the palette, as it does after a file dialog there.
class EndWhileSaving : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        ::GetCurrentDirectoryA(folder.size(), folder.data());
        ASSERT_TRUE(::CopyFileA(HUEVOX_EXE, OtherPathOf(HUEVOX_EXE).c_str(), FALSE));
        ::SetCurrentDirectoryA(otherFolder);
    }
    void TearDown() override {
        ::SetCurrentDirectoryA(folder.data());
        PaletteTest::TearDown();
    }

    /// The title tells the program where the palette is saved.
    static void Save(const Huevox& huevox, int times) {
        ::SendMessageA(huevox.window(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Huevox - mine.txt"));
        for (int time = 0; time < times; ++time)
            ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuFileSave, 0);
    }
    static std::string Content() { return ContentOf(OtherPathOf("mine.txt")); }

    /// How long an undisturbed save takes; keeps what the file holds afterwards.
    Milliseconds TimeOfSave() {
        WriteContent(OtherPathOf("mine.txt"), before);
        const Huevox huevox;
        const Milliseconds start = NowInMilliseconds();
        Save(huevox, 1);
        // While the file is being replaced it cannot be opened.
        EXPECT_TRUE(Eventually([&] {
            after = Content();
            return !after.empty() && after != before;
        }));
        return NowInMilliseconds() - start;
    }
    static std::string ContentAfterKill(Killer& killer, Milliseconds span) {
        constexpr int savesInARow = 50;
        WriteContent(OtherPathOf("mine.txt"), before);
        const Huevox huevox;
        Save(huevox, savesInARow);
        killer.kill(huevox, span);
        return Content();
    }

    inline static const std::string before = PaletteOf("mine", "1,2,3");
    std::string after;

private:
    std::array<char, MAX_PATH> folder{};
};

class EndWhileWritingInPlace : public EndWhileSaving {
protected:
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
};

class EndWhileRepairing : public UiTest {
protected:
    static constexpr std::array<std::array<const char*, 3>, 4> settings = {{{"FormatIndex", "12", "0"},
                                                                            {"SortIndex", "9", "0"},
                                                                            {"PromptToSave", "0", "1"},
                                                                            {"CustomFormat", "%UR%", ""}}};

    static bool IsEachOldOrNew() {
        for (const auto& [name, unusable, repaired] : settings) {
            const std::string text = StoredText(name);
            if (text != unusable && text != repaired) return false;
        }
        const std::string folder = StoredText("StandardFolder");
        return folder == "C:\\" || folder.ends_with("\\Desktop");
    }
    static void StoreUnusable() {
        for (const auto& [name, unusable, repaired] : settings) StoreText(name, unusable);
        StoreText("StandardFolder", "C:\\");
    }

    /// How long a start takes until it reports the repair.
    static Milliseconds TimeOfRepair() {
        StoreUnusable();
        const Milliseconds start = NowInMilliseconds();
        const Huevox huevox(Huevox::DoNotWait{});
        EXPECT_TRUE(huevox.waitForDialog());
        return NowInMilliseconds() - start;
    }
    static void KillWhileStarting(Killer& killer, Milliseconds span) {
        StoreUnusable();
        const Huevox huevox(Huevox::DoNotWait{});
        killer.kill(huevox, span);
    }
    static void ExpectUsableStart() {
        Huevox huevox(Huevox::DoNotWait{});
        ASSERT_TRUE(Eventually([&] { return huevox.dialog() || huevox.form("frmMain"); }));
        if (const HWND message = huevox.dialog()) Answer(message, IDOK);
        ASSERT_TRUE(huevox.waitForWindow());
        EXPECT_EQ(huevox.dialogCount(), 0);
        EXPECT_EQ(huevox.listIndex(), 0);
    }
};

}  // namespace

TEST_F(EndWhileSaving, LeavesTheOldPaletteOrTheNewOne) {
    const Milliseconds span = 3 * TimeOfSave();
    const int kills = CountKills(16);
    Killer killer;
    int saved = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const std::string content = ContentAfterKill(killer, span);
        ASSERT_TRUE(content == before || content == after) << "kill " << kill << '\n' << content;
        saved += content == after ? 1 : 0;
    }
    std::printf("%d kills during saves: none torn, %d new, %d old, %d other files left\n", kills, saved,
                kills - saved, CountFiles(otherFolder, "*.tmp"));
}

TEST_F(EndWhileWritingInPlace, EmptiesNoFile) {
    const Milliseconds span = 3 * TimeOfSave();
    const int kills = CountKills(16) / 4;
    const ReadOnlyFolder folder(otherFolder);
    Killer killer;
    int whole = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const std::string content = ContentAfterKill(killer, span);
        ASSERT_TRUE(isMixture(content)) << "kill " << kill << '\n' << content;
        whole += content == before || content == after ? 1 : 0;
    }
    std::printf("%d kills while files were written in place: none empty, %d old or new\n", kills, whole);
}

TEST_F(EndWhileRepairing, LeavesSettingsThatTheNextStartCanUse) {
    const Milliseconds span = 1.2 * TimeOfRepair();
    const int kills = CountKills(16) / 4;
    Killer killer;
    int repaired = 0;
    for (int kill = 0; kill < kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        KillWhileStarting(killer, span);
        ASSERT_TRUE(IsEachOldOrNew());
        repaired += StoredText("StandardFolder") != "C:\\" ? 1 : 0;
        ExpectUsableStart();
    }
    std::printf("%d kills during starts that repair: all usable, %d repaired already\n", kills, repaired);
}
