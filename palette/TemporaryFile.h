// How is a file made that takes the place of another?
#pragma once

#include <string>
#include <string_view>

#include "palette/OpenedFile.h"

/// A file with a new name, deleted unless it takes the place of another; while it is being written, even when
/// the program is ended from outside.
class TemporaryFile {
public:
    /// Throws std::runtime_error when the disk is full.
    TemporaryFile(std::wstring_view folder, DWORD attributes);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    /// False when none can be made in the folder.
    explicit operator bool() const { return !name.empty(); }
    const std::wstring& path() const { return name; }

    /// Writes all of it, and lets others open it from then on. Throws std::runtime_error when the text is not
    /// on the disk.
    void write(std::string_view text);
    /// False when the file system or others refuse that.
    bool takesPlaceOf(const std::wstring& target);

private:
    void make(const std::wstring& wanted, DWORD attributes);
    void goWhenClosed(bool goes) const;

    std::wstring name;
    OwnedFile file;
    bool isMoved = false;
};
