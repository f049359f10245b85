// How does a test keep anybody from making files in a folder?
#pragma once

#include <string>
#include <utility>

#include "tests/driver/Palettes.h"
#include "tests/driver/Rights.h"

/// Nobody may make, rename or remove files in the folder, for as long as the value lives.
class ReadOnlyFolder {
public:
    explicit ReadOnlyFolder(std::string path) : path(std::move(path)) {
        setRights(readingOnly);
        WriteContent(this->path + "\\probe", "x");
        EXPECT_FALSE(Exists(this->path + "\\probe")) << "the tests must not run with the rights of root";
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;
    ~ReadOnlyFolder() { setRights(everything); }

private:
    void setRights(const char* rights) const {
        SetRights(rights, [&](PSECURITY_DESCRIPTOR descriptor) {
            EXPECT_TRUE(::SetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, descriptor));
        });
    }

    std::string path;
};
