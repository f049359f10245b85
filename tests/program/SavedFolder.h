// Where do the tests of saving from inside the program save?
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "palette/TextFile.h"

inline constexpr const char* savedFolder = "C:\\Saved";
inline constexpr const char* savedFile = "C:\\Saved\\mine.txt";

inline std::string ContentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteContent(const std::string& path, std::string_view content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
}

/// Every test begins with a folder that holds one file.
class SavedFolder : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::remove_all(savedFolder);
        std::filesystem::create_directory(savedFolder);
        WriteContent(savedFile, old);
    }
    void TearDown() override { std::filesystem::remove_all(savedFolder); }

    static void ExpectSaved() {
        ReplaceTextFile(savedFile, changed);
        EXPECT_EQ(ContentOf(savedFile), changed);
        ExpectNothingLeft();
    }
    static void ExpectRefused() {
        EXPECT_THROW(ReplaceTextFile(savedFile, changed), std::runtime_error);
        EXPECT_EQ(ContentOf(savedFile), old);
        ExpectNothingLeft();
    }
    /// No file but the one that was there.
    static void ExpectNothingLeft() {
        using Entries = std::filesystem::directory_iterator;
        EXPECT_EQ(std::distance(Entries(savedFolder), Entries()), 1);
    }

    inline static const std::string old = "The old text.\r\n" + std::string(300, 'o') + "\r\n";
    inline static const std::string changed = "The new text.\r\n" + std::string(200, 'n') + "\r\n";
};
