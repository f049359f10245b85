// What do files cost that are dropped on the main window again and again?
#include <shlobj.h>

#include <cstring>
#include <string>

#include "palette/PaletteFile.h"
#include "tests/driver/Usage.h"
#include "tests/driver/WindowText.h"
#include "tests/program/MainWindowFixture.h"
#include "tests/program/SavedFolder.h"
#include "toolkit/platform/Text.h"

namespace {

class DroppedFiles : public ShownMainWindow {
protected:
    void SetUp() override {
        ShownMainWindow::SetUp();
        std::filesystem::create_directory(savedFolder);
    }
    void TearDown() override {
        // An opened palette's folder is the current one, which nobody can remove.
        std::filesystem::current_path("C:\\");
        std::filesystem::remove_all(savedFolder);
        ShownMainWindow::TearDown();
    }

    /// As Windows delivers it: the list is the window's to free.
    void drop(const std::wstring& path) const {
        const std::size_t bytes = (path.size() + 2) * sizeof(wchar_t);
        const HGLOBAL list = ::GlobalAlloc(GHND, sizeof(DROPFILES) + bytes);
        auto* header = static_cast<DROPFILES*>(::GlobalLock(list));
        header->pFiles = sizeof(DROPFILES);
        header->fWide = TRUE;
        std::memcpy(header + 1, path.c_str(), path.size() * sizeof(wchar_t));
        ::GlobalUnlock(list);
        ::SendMessageW(window.handle(), WM_DROPFILES, reinterpret_cast<WPARAM>(list), 0);
    }
    long long bytes() const { return UsageOf(::GetCurrentProcess(), window.handle()).bytes; }
};

}  // namespace

TEST_F(DroppedFiles, LeaveTheMemoryFlat) {
    WriteContent(savedFile,
                 WritePaletteFile({state.marks.defaultMarkName, state.marks.defaultMarkColor}, ""));
    const std::wstring path = Wide(savedFile);
    const auto dropTimes = [&](int times) {
        for (int time = 0; time < times; ++time) drop(path);
    };
    dropTimes(50);
    ASSERT_EQ(TextOf(window.handle()), "Huevox - mine.txt");
    const long long before = bytes();
    dropTimes(500);
    // One block of a file that stays each time would be 32 MB.
    EXPECT_LT(bytes() - before, 1'000'000) << before;
}
