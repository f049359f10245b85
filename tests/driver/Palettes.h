// What do the tests of palette files share?
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "support/Marks.h"
#include "tests/driver/UiTest.h"

/// Every test begins with an empty standard folder for its files.
class PaletteTest : public UiTest {
protected:
    void SetUp() override;
    void TearDown() override;
};

inline constexpr const char* paletteFolder = "C:\\Huevox Palettes";
inline constexpr const char* otherFolder = "C:\\Huevox Palettes\\other";

/// The path of a file in the standard folder, or in the other folder, which is inside it.
std::string PathOf(std::string_view name);
std::string OtherPathOf(std::string_view name);

std::string ContentOf(const std::string& path);
void WriteContent(const std::string& path, std::string_view content);
bool Exists(const std::string& path);
/// A file is read-only for as long as the value lives.
class ReadOnlyFile {
public:
    explicit ReadOnlyFile(std::string path);
    ReadOnlyFile(const ReadOnlyFile&) = delete;
    ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;
    ~ReadOnlyFile();

private:
    std::string path;
};
/// A file is locked, as by another program, for as long as the value lives.
class LockedFile {
public:
    explicit LockedFile(const std::string& path);
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;
    ~LockedFile();

private:
    HANDLE file;
};
/// How many files of the folder match a pattern such as "*.tmp".
int CountFiles(const std::string& folder, const char* pattern);

/// A file that stands beside the tests: "saved.txt" and one of each older generation.
std::string TestFile(std::string_view name);
/// The 16 lines that a reader needs, all six marks with that name and colour.
std::string PaletteOf(std::string_view name, std::string_view color);

inline constexpr const char* saveTitle = "Save Palette As";
inline constexpr const char* openTitle = "Open Palette In Huevox";
inline constexpr const char* notepadTitle = "Open Palette In Notepad";
inline constexpr const char* question = "The palette has been changed. Do you want to save it?";
inline constexpr const char* couldNotSave = "Could not save. Check if file or folder is read-only.";

/// Waits for a file dialog that is ready for typing; nullptr when it does not come.
[[nodiscard]] HWND WaitForFileDialog(const Huevox& huevox, std::string_view title);
/// Waits for the question and gives the answer to it.
void AnswerQuestion(const Huevox& huevox, int button);
/// Waits for the question over the file dialog whether to replace a file, and answers it.
void AnswerReplacing(const Huevox& huevox, int button);
/// Closes the one message of an unexpected error, and expects the program to end by it.
void ExpectEndByError(const Huevox& huevox);
/// Waits for a file dialog, types a path into it and presses Enter.
void TypePath(const Huevox& huevox, std::string_view title, std::string_view path);
/// The same, and waits until the file dialog is gone.
void ChoosePath(const Huevox& huevox, std::string_view title, std::string_view path);
/// Presses Escape and waits until the file dialog is gone.
void CancelFileDialog(const Huevox& huevox, std::string_view title);

/// Opens a file by Ctrl+O and waits for its title.
void OpenPalette(const Huevox& huevox, const std::string& path);
/// Saves a palette that has no file yet by Ctrl+S and waits for its title.
void SaveNewPalette(const Huevox& huevox, const std::string& path);
/// Moves the green slider of the selected mark by one.
void ChangeColor(const Huevox& huevox);

/// The commands that may ask whether to save.
void PressNew();
void PressOpen();
void PressClose(const Huevox& huevox);
/// The commands that save.
void PressSave();
void ChooseSaveAs();
/// Expects the first mark to have that colour still and the window to be usable: changes the colour once
/// more.
void ExpectStill(const Huevox& huevox, const Color& color);

void ExpectPalette(const Huevox& huevox, const Palette& palette);
/// Expects the six default colours without names.
void ExpectNewPalette(const Huevox& huevox);
