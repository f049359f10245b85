// Can a library that somebody has planted get into the program?
#include "toolkit/platform/LibrarySearch.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "toolkit/platform/Platform.h"

namespace {

constexpr const char* plantedHere = "PlantedInTheCurrentFolder.dll";
constexpr const char* plantedBesideTheProgram = "Planted.dll";

bool IsFound(const char* library, DWORD flags = 0) {
    const HMODULE module = ::LoadLibraryExA(library, nullptr, flags);
    if (module) ::FreeLibrary(module);
    return module != nullptr;
}

std::string OwnFolder() {
    std::array<char, MAX_PATH> path{};
    ::GetModuleFileNameA(nullptr, path.data(), MAX_PATH);
    const std::string file = path.data();
    return file.substr(0, file.rfind('\\') + 1);
}

class LibrarySearch : public testing::Test {
protected:
    void SetUp() override {
        std::array<char, MAX_PATH> temporary{};
        ::GetTempPathA(MAX_PATH, temporary.data());
        folder = std::string(temporary.data()) + "planted";
        ::CreateDirectoryA(folder.c_str(), nullptr);
        ::GetCurrentDirectoryA(MAX_PATH, before.data());
        ASSERT_TRUE(::SetCurrentDirectoryA(folder.c_str()));
        ASSERT_TRUE(::CopyFileA((OwnFolder() + plantedBesideTheProgram).c_str(), plantedHere, FALSE));
    }
    void TearDown() override {
        ::DeleteFileA(plantedHere);
        ::SetCurrentDirectoryA(before.data());
        ::RemoveDirectoryA(folder.c_str());
    }

    std::string folder;
    std::array<char, MAX_PATH> before{};
};

}  // namespace

TEST_F(LibrarySearch, EndsInTheSystemFolder) {
    ASSERT_TRUE(IsFound(plantedHere));
    ASSERT_TRUE(IsFound(plantedBesideTheProgram));
    SearchSystemFolderOnly();
    EXPECT_FALSE(IsFound(plantedHere));
    EXPECT_FALSE(IsFound(plantedBesideTheProgram));
    EXPECT_FALSE(IsFound(plantedHere, LOAD_WITH_ALTERED_SEARCH_PATH));
    EXPECT_TRUE(IsFound("version.dll"));
}
