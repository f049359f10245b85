// Is anything torn or unusable when the program is ended at any moment?
#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "tests/driver/Palettes.h"

namespace {

using Milliseconds = double;

Milliseconds Now() {
    LARGE_INTEGER count{};
    LARGE_INTEGER frequency{};
    ::QueryPerformanceCounter(&count);
    ::QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

/// As often as HUEVOX_KILLS says, or a share that every run of the tests can afford.
int CountKills(int share) {
    const char* wanted = std::getenv("HUEVOX_KILLS");
    return wanted ? std::atoi(wanted) : share;
}

/// Ends the program at a random moment within a span from now on.
class Killer {
public:
    void kill(const Huevox& huevox, Milliseconds span) {
        const Milliseconds end = Now() + span * std::uniform_real_distribution<>(0, 1)(random);
        while (Now() < end) continue;
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

    inline static const std::string before = PaletteOf("mine", "1,2,3");

private:
    std::array<char, MAX_PATH> folder{};
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
};

}  // namespace

TEST_F(EndWhileSaving, LeavesTheOldPaletteOrTheNewOne) {
    constexpr int savesInARow = 50;
    Milliseconds span = 0;
    std::string after;
    {
        WriteContent(OtherPathOf("mine.txt"), before);
        const Huevox huevox;
        const Milliseconds start = Now();
        Save(huevox, 1);
        // While the file is being replaced it cannot be opened.
        ASSERT_TRUE(Eventually([&] {
            after = Content();
            return !after.empty() && after != before;
        }));
        span = 3 * (Now() - start);
    }
    const int kills = CountKills(16);
    Killer killer;
    int saved = 0;
    int left = 0;
    for (int kill = 0; kill < kills; ++kill) {
        WriteContent(OtherPathOf("mine.txt"), before);
        const Huevox huevox;
        Save(huevox, savesInARow);
        killer.kill(huevox, span);
        const std::string content = Content();
        ASSERT_TRUE(content == before || content == after) << "kill " << kill << '\n' << content;
        saved += content == after ? 1 : 0;
        left = CountFiles(otherFolder, "*.tmp");
    }
    std::printf("%d kills during saves: none torn, %d new, %d old, %d other files left\n", kills, saved,
                kills - saved, left);
}

TEST_F(EndWhileRepairing, LeavesSettingsThatTheNextStartCanUse) {
    Milliseconds span = 0;
    {
        StoreUnusable();
        const Milliseconds start = Now();
        Huevox huevox(Huevox::DoNotWait{});
        ASSERT_TRUE(huevox.waitForDialog());
        span = 1.2 * (Now() - start);
    }
    const int kills = CountKills(16) / 4;
    Killer killer;
    int repaired = 0;
    for (int kill = 0; kill < kills; ++kill) {
        StoreUnusable();
        {
            const Huevox huevox(Huevox::DoNotWait{});
            killer.kill(huevox, span);
        }
        ASSERT_TRUE(IsEachOldOrNew()) << "kill " << kill;
        repaired += StoredText("StandardFolder") != "C:\\" ? 1 : 0;
        Huevox next(Huevox::DoNotWait{});
        const auto isThere = [&] { return next.dialog() != nullptr || next.form("frmMain") != nullptr; };
        ASSERT_TRUE(Eventually(isThere)) << "kill " << kill;
        if (const HWND message = next.dialog()) Answer(message, IDOK);
        ASSERT_TRUE(next.waitForWindow()) << "kill " << kill;
        EXPECT_EQ(next.dialogCount(), 0);
        EXPECT_EQ(next.listIndex(), 0);
    }
    std::printf("%d kills during starts that repair: all usable, %d repaired already\n", kills, repaired);
}
