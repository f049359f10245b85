// How does a test take a file of Windows away for a while?
#pragma once

#include <string>
#include <utility>

#include "tests/driver/Wait.h"

/// Whoever has just used the file may hold it for a moment longer.
inline void DeleteSoon(const std::string& path) {
    EXPECT_TRUE(Eventually([&] {
        return ::DeleteFileA(path.c_str()) || ::GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES;
    })) << path;
}

/// A file is another, or none, for as long as the value lives.
class ReplacedFile {
public:
    explicit ReplacedFile(std::string path) : path(std::move(path)), aside(this->path + ".aside") {
        EXPECT_TRUE(::MoveFileA(this->path.c_str(), aside.c_str())) << this->path;
    }
    ReplacedFile(std::string path, const char* standIn) : ReplacedFile(std::move(path)) {
        EXPECT_TRUE(::CopyFileA(standIn, this->path.c_str(), FALSE)) << this->path;
    }
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;
    ~ReplacedFile() {
        DeleteSoon(path);
        EXPECT_TRUE(::MoveFileA(aside.c_str(), path.c_str())) << path;
    }

private:
    std::string path;
    std::string aside;
};
