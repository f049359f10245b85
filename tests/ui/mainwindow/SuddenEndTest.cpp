// Are the settings usable when the program is ended at any moment of a start?
#include <array>
#include <cstdio>
#include <string>

#include "tests/driver/Killer.h"
#include "tests/driver/UiTest.h"

namespace {

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
