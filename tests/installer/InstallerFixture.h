// What does every test of the installer begin and end with?
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/driver/Wait.h"
#include "tests/installer/Installed.h"

inline const std::filesystem::path folderWithBlanks{"C:\\Some folder\\of colours"};

/// Nothing is installed before a test, and nothing stays.
class Installer : public testing::Test {
protected:
    void SetUp() override {
        ::RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Quorvane");
        ASSERT_TRUE(std::filesystem::exists(setup) && std::filesystem::exists(newerSetup));
        ASSERT_FALSE(HasKey(uninstallKey)) << "something is installed";
        ASSERT_TRUE(MakeKey(programsKey));
    }
    void TearDown() override {
        const std::filesystem::path folder = Value(uninstallKey, "InstallLocation");
        if (!folder.empty()) {
            EXPECT_TRUE(Remove(folder)) << folder;
        }
        ::RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Quorvane");
        std::filesystem::remove_all(folderWithBlanks.parent_path());
    }

    static void install(const std::filesystem::path& installer = setup, const std::string& extra = "") {
        ASSERT_EQ(RunToEnd(installer.string() + " /S" + extra), 0);
    }
    static void installInFolderWithBlanks() { install(setup, " /D=" + folderWithBlanks.string()); }
};

inline std::string Bytes(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline std::string Quoted(const std::filesystem::path& path) { return "\"" + path.string() + "\""; }
