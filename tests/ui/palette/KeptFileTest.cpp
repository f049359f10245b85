// What does a saved file keep of the old one, and how is one saved that must stay where it is?
#include <array>
#include <cstdlib>
#include <utility>

#include "tests/driver/Below.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/ReadOnlyFolder.h"

namespace {

/// A symbolic link for as long as the value lives. Removed by Windows, it would take along what it leads to.
class Link {
public:
    Link(std::string path, const std::string& target) : path(std::move(path)) {
        const std::size_t name = this->path.rfind('\\') + 1;
        below = Below(this->path.substr(0, name)) + '/' + this->path.substr(name);
        RunBelow("ln", "-s \"" + Below(target) + "\" \"" + below + '"');
        EXPECT_TRUE(Eventually([&] { return Exists(this->path); }));
    }
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;
    ~Link() {
        RunBelow("rm", '"' + below + '"');
        EXPECT_TRUE(Eventually([&] { return !Exists(path); }));
    }

    std::wstring target() const {
        const HANDLE file =
            ::CreateFileA(path.c_str(), 0, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        std::array<wchar_t, MAX_PATH> found{};
        ::GetFinalPathNameByHandleW(file, found.data(), static_cast<DWORD>(found.size()), 0);
        ::CloseHandle(file);
        return found.data();
    }

private:
    static std::string Below(const std::string& path) {
        return SystemPathOf(std::wstring(path.begin(), path.end()).c_str());
    }

    std::string path;
    std::string below;
};

class SavingKeeps : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        WriteContent(OtherPathOf("mine.txt"), before);
    }

    /// Opens the file, changes a colour and saves; expects that to reach the target.
    static void SaveThrough(const Huevox& huevox, const std::string& opened, const std::string& target) {
        OpenPalette(huevox, opened);
        ChangeColor(huevox);
        PressSave();
        EXPECT_TRUE(Eventually([&] { return ContentOf(target).find("\r\n1,3,3\r\n") != std::string::npos; }));
        EXPECT_EQ(huevox.dialogCount(), 0);
        EXPECT_EQ(CountFiles(otherFolder, "*.tmp"), 0);
    }
    static void Save(const std::string& path) {
        const Huevox huevox;
        SaveThrough(huevox, path, path);
    }
    static std::string RightsOf(const std::string& path) {
        std::array<char, 4096> rights{};
        DWORD size = 0;
        ::GetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, rights.data(), rights.size(), &size);
        return {rights.data(), size};
    }

    inline static const std::string before = PaletteOf("mine", "1,2,3");
};

class ImmovableFile : public UiTest {};

}  // namespace

TEST_F(SavingKeeps, TheAttributes) {
    constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
    ASSERT_TRUE(::SetFileAttributesA(OtherPathOf("mine.txt").c_str(), kept));
    Save(OtherPathOf("mine.txt"));
    EXPECT_EQ(::GetFileAttributesA(OtherPathOf("mine.txt").c_str()), kept);
}

TEST_F(SavingKeeps, TheAccessRights) {
    WriteContent(OtherPathOf("new.txt"), before);
    SetRights(everything, [](PSECURITY_DESCRIPTOR rights) {
        ASSERT_TRUE(::SetFileSecurityA(OtherPathOf("mine.txt").c_str(), DACL_SECURITY_INFORMATION, rights));
    });
    const std::string rights = RightsOf(OtherPathOf("mine.txt"));
    ASSERT_NE(rights, RightsOf(OtherPathOf("new.txt")));
    Save(OtherPathOf("mine.txt"));
    EXPECT_EQ(RightsOf(OtherPathOf("mine.txt")), rights);
}

TEST_F(SavingKeeps, ASymbolicLinkAndWritesWhatItLeadsTo) {
    const Link link(PathOf("link.txt"), OtherPathOf("mine.txt"));
    const Huevox huevox;
    SaveThrough(huevox, PathOf("link.txt"), OtherPathOf("mine.txt"));
    EXPECT_EQ(link.target(), L"\\\\?\\C:\\Huevox Palettes\\other\\mine.txt");
    EXPECT_EQ(huevox.title(), "Huevox - link.txt");
}

TEST_F(SavingKeeps, AFileInAFolderWhereNoneCanBeMade) {
    const ReadOnlyFolder folder(otherFolder);
    Save(OtherPathOf("mine.txt"));
}

TEST_F(SavingKeeps, AFileWithAsLongAPathAsTheDialogsTake) {
    // 258 characters. The path of a temporary file beside it is longer than the 260 that Windows allows.
    constexpr std::size_t letters = 256;
    const std::string folder = PathOf(std::string(letters - std::string_view(paletteFolder).size() - 1, 'f'));
    ASSERT_TRUE(
        ::CreateDirectoryW((L"\\\\?\\" + std::wstring(folder.begin(), folder.end())).c_str(), nullptr));
    const std::string path = folder + "\\m";
    WriteContent(path, before);
    Save(path);
    EXPECT_EQ(CountFiles(folder, "*"), 3) << "beside the two dots and the file something is left";
}

TEST_F(SavingKeeps, FilesThatHaveTheNameOfATemporaryOne) {
    const Huevox huevox;
    DWORD id = 0;
    ::GetWindowThreadProcessId(huevox.window(), &id);
    const auto taken = [&](int attempt) {
        return OtherPathOf("hvx" + std::to_string(id) + '-' + std::to_string(attempt) + ".tmp");
    };
    for (int attempt = 0; attempt < 3; ++attempt) WriteContent(taken(attempt), "theirs");
    OpenPalette(huevox, OtherPathOf("mine.txt"));
    ChangeColor(huevox);
    PressSave();
    EXPECT_TRUE(Eventually(
        [] { return ContentOf(OtherPathOf("mine.txt")).find("\r\n1,3,3\r\n") != std::string::npos; }));
    for (int attempt = 0; attempt < 3; ++attempt) EXPECT_EQ(ContentOf(taken(attempt)), "theirs");
    EXPECT_EQ(CountFiles(otherFolder, "*.tmp"), 3);
}

TEST_F(ImmovableFile, IsWrittenWhereItIs) {
    const std::string file = std::getenv("HUEVOX_IMMOVABLE_FILE");
    WriteContent(file, PaletteOf("mine", "1,2,3"));
    const Huevox huevox;
    OpenPalette(huevox, file);
    ChangeColor(huevox);
    PressSave();
    EXPECT_TRUE(Eventually([&] { return ContentOf(file).find("\r\n1,3,3\r\n") != std::string::npos; }));
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_EQ(CountFiles(file.substr(0, file.rfind('\\')), "*.tmp"), 0);
}
