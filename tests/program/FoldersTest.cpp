#include "settings/Folders.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"
#include "tests/toolkit/TestForm.h"

namespace {

class ValidFolder : public testing::Test {
protected:
    void SetUp() override {
        ::CreateDirectoryA("C:\\Folders Test", nullptr);
        ::CreateDirectoryA("C:\\Folders Test\\Inner", nullptr);
        std::ofstream("C:\\Folders Test\\file") << "x";
    }
    void TearDown() override {
        ::DeleteFileA("C:\\Folders Test\\file");
        ::RemoveDirectoryA("C:\\Folders Test\\Inner");
        ::RemoveDirectoryA("C:\\Folders Test");
    }
};

/// Waits until the folder picker shows its folders, presses a button of it, and returns its title line.
std::string UseFolderPicker(int button) {
    constexpr int tree = 14145;
    constexpr int titleLine = 14146;
    HWND picker = nullptr;
    EXPECT_TRUE(Eventually([&] {
        picker = ::FindWindowA("#32770", "Browse for Folder");
        return picker && ::SendMessageA(::GetDlgItem(picker, tree), TVM_GETCOUNT, 0, 0) > 0;
    }));
    std::string title = TextOf(::GetDlgItem(picker, titleLine));
    ::PostMessageA(picker, WM_COMMAND, button, reinterpret_cast<LPARAM>(::GetDlgItem(picker, button)));
    return title;
}

}  // namespace

TEST_F(ValidFolder, AnExistingFolderIsValidWithAndWithoutAClosingBackslash) {
    EXPECT_TRUE(IsValidFolder("C:\\Folders Test"));
    EXPECT_TRUE(IsValidFolder("C:\\Folders Test\\"));
    EXPECT_TRUE(IsValidFolder("C:\\Folders Test\\Inner"));
}

TEST_F(ValidFolder, OnlyOneClosingBackslashIsDropped) { EXPECT_FALSE(IsValidFolder("C:\\Folders Test\\\\")); }

TEST_F(ValidFolder, AFileIsNone) { EXPECT_FALSE(IsValidFolder("C:\\Folders Test\\file")); }

TEST_F(ValidFolder, AFolderThatDoesNotExistIsNone) {
    EXPECT_FALSE(IsValidFolder("C:\\Folders Test\\Gone"));
    EXPECT_FALSE(IsValidFolder("C:\\Gone\\Inner"));
    EXPECT_FALSE(IsValidFolder("Q:\\Folder"));
}

TEST_F(ValidFolder, TheLetterCaseOfTheLastPartCounts) {
    EXPECT_FALSE(IsValidFolder("C:\\folders test"));
    EXPECT_FALSE(IsValidFolder("C:\\Folders Test\\inner"));
    EXPECT_TRUE(IsValidFolder("C:\\folders test\\Inner"));
}

TEST_F(ValidFolder, MayHaveANameInAnyScript) {
    const std::filesystem::path folder = L"C:\\Folders Test\\Палитры 色見本";
    std::filesystem::create_directory(folder);
    EXPECT_TRUE(IsValidFolder("C:\\Folders Test\\Палитры 色見本"));
    EXPECT_TRUE(IsValidFolder("C:\\Folders Test\\Палитры 色見本\\"));
    EXPECT_FALSE(IsValidFolder("C:\\Folders Test\\палитры 色見本"));
    std::filesystem::remove(folder);
}

TEST_F(ValidFolder, AShortTextIsNoneHoweverManyBytesItTakes) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path("C:\\Folders Test");
    std::filesystem::create_directory(L"Жук");
    EXPECT_FALSE(IsValidFolder("Жук"));
    std::filesystem::remove(L"Жук");
    std::filesystem::current_path(before);
}

TEST_F(ValidFolder, AWildcardIsNone) {
    EXPECT_FALSE(IsValidFolder("C:\\Folders*"));
    EXPECT_FALSE(IsValidFolder("C:\\Folders Test\\?nner"));
    EXPECT_FALSE(IsValidFolder("C:\\*.*"));
}

TEST_F(ValidFolder, DriveRootsAreValid) {
    EXPECT_TRUE(IsValidFolder("C:\\"));
    EXPECT_TRUE(IsValidFolder("C:"));
    EXPECT_FALSE(IsValidFolder("Q:\\"));
    EXPECT_FALSE(IsValidFolder("Q:"));
}

TEST_F(ValidFolder, NothingABackslashAndShortTextsAreNone) {
    for (const char* path : {"", "\\", "\\\\", "x", ".", "..", "...", "?", "*", "c", ":", " "}) {
        EXPECT_FALSE(IsValidFolder(path)) << path;
    }
}

TEST(DesktopFolder, IsTheUsersDesktop) {
    std::string folder = "before";
    EXPECT_TRUE(GetDesktopFolder(folder));
    EXPECT_TRUE(folder.ends_with("\\Desktop")) << folder;
}

TEST(BrowseForFolder, ReturnsTheChosenFolderUnderItsTitleLine) {
    ForgetQuit();
    std::string title;
    std::thread user([&] { title = UseFolderPicker(IDOK); });
    const std::string chosen = BrowseForFolder(nullptr);
    user.join();
    EXPECT_EQ(title, "C:\\");
    EXPECT_TRUE(chosen.ends_with("\\Desktop")) << chosen;
}

TEST(BrowseForFolder, ReturnsNothingWhenCancelled) {
    ForgetQuit();
    std::thread user([] { UseFolderPicker(IDCANCEL); });
    EXPECT_EQ(BrowseForFolder(nullptr), "");
    user.join();
}
