#include "tests/driver/Palettes.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

namespace {

constexpr int nameField = 1148;

HWND NameField(HWND dialog) {
    HWND found = nullptr;
    ::EnumChildWindows(
        dialog,
        [](HWND child, LPARAM parameter) {
            if (::GetDlgCtrlID(child) != nameField || ClassOf(child) != "Edit") return TRUE;
            *reinterpret_cast<HWND*>(parameter) = child;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

std::string TitleOf(const std::string& path) { return "Huevox - " + path.substr(path.rfind('\\') + 1); }

}  // namespace

void PaletteTest::SetUp() {
    UiTest::SetUp();
    std::filesystem::remove_all(paletteFolder);
    std::filesystem::create_directories(otherFolder);
    StoreText("StandardFolder", paletteFolder);
}

void PaletteTest::TearDown() {
    UiTest::TearDown();
    std::error_code ignored;
    std::filesystem::remove_all(paletteFolder, ignored);
}

std::string PathOf(std::string_view name) { return std::string(paletteFolder) + '\\' + std::string(name); }
std::string OtherPathOf(std::string_view name) { return std::string(otherFolder) + '\\' + std::string(name); }

std::string ContentOf(const std::string& path) {
    std::ifstream file(std::filesystem::path(Wide(path)), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteContent(const std::string& path, std::string_view content) {
    std::ofstream file(std::filesystem::path(Wide(path)), std::ios::binary);
    file << content;
}

bool Exists(const std::string& path) {
    return ::GetFileAttributesW(Wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

ReadOnlyFile::ReadOnlyFile(std::string path) : path(std::move(path)) {
    EXPECT_TRUE(::SetFileAttributesW(Wide(this->path).c_str(), FILE_ATTRIBUTE_READONLY));
}

ReadOnlyFile::~ReadOnlyFile() { ::SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_NORMAL); }

LockedFile::LockedFile(const std::string& path)
    : file(::CreateFileW(Wide(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0,
                         nullptr)) {
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << path;
}

LockedFile::~LockedFile() { ::CloseHandle(file); }

int CountFiles(const std::string& folder, const char* pattern) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(Wide(folder + '\\' + pattern).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return 0;
    int count = 1;
    while (::FindNextFileW(search, &found)) ++count;
    ::FindClose(search);
    return count;
}

std::string TestFile(std::string_view name) { return ContentOf(HUEVOX_TEST_FILES + std::string(name)); }

std::string PaletteOf(std::string_view name, std::string_view color) {
    std::string text = "THIS FILE WAS MADE IN HUEVOX. DO NOT EDIT.\r\n\r\n\r\n\r\n";
    for (int mark = 0; mark < markCount; ++mark)
        text += std::string(name) + "\r\n" + std::string(color) + "\r\n";
    return text;
}

HWND WaitForFileDialog(const Huevox& huevox, std::string_view title) {
    HWND dialog = nullptr;
    const bool isReady = Eventually([&] {
        dialog = huevox.dialog();
        return dialog && TextOf(dialog) == title && NameField(dialog) && huevox.focus() == NameField(dialog);
    });
    EXPECT_TRUE(isReady) << title;
    return isReady ? dialog : nullptr;
}

void AnswerQuestion(const Huevox& huevox, int button) {
    Answer(WaitForMessage(huevox, question), button);
    WaitForReturn(huevox);
}

void AnswerReplacing(const Huevox& huevox, int button) {
    ASSERT_BECOMES(huevox.dialogCount(), 2);
    Answer(huevox.dialog(), button);
}

void ExpectEndByError(const Huevox& huevox) {
    CloseMessage(huevox, "Huevox encountered an unexpected error and must close.");
    EXPECT_EQ(huevox.waitForEnd(), 1);
}

void TypePath(const Huevox& huevox, std::string_view title, std::string_view path) {
    const HWND dialog = WaitForFileDialog(huevox, title);
    ASSERT_TRUE(dialog);
    const HWND field = NameField(dialog);
    Type(path);
    ASSERT_BECOMES(TextOf(field), path);
    Press(VK_RETURN);
}

void ChoosePath(const Huevox& huevox, std::string_view title, std::string_view path) {
    const HWND dialog = WaitForFileDialog(huevox, title);
    ASSERT_TRUE(dialog);
    TypePath(huevox, title, path);
    EXPECT_TRUE(Eventually([&] { return !::IsWindow(dialog); }));
    WaitForReturn(huevox);
}

void CancelFileDialog(const Huevox& huevox, std::string_view title) {
    const HWND dialog = WaitForFileDialog(huevox, title);
    ASSERT_TRUE(dialog);
    Press(VK_ESCAPE);
    EXPECT_TRUE(Eventually([&] { return !::IsWindow(dialog); }));
    WaitForReturn(huevox);
}

void OpenPalette(const Huevox& huevox, const std::string& path) {
    PressOpen();
    ChoosePath(huevox, openTitle, path);
    EXPECT_BECOMES(huevox.title(), TitleOf(path));
}

void SaveNewPalette(const Huevox& huevox, const std::string& path) {
    PressSave();
    ChoosePath(huevox, saveTitle, path);
    EXPECT_BECOMES(huevox.title(), TitleOf(path));
}

void ChangeColor(const Huevox& huevox) {
    huevox.focusSlider(IDC_hsbGreen);
    const Color before = huevox.sliders();
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(before.red, before.green + 1, before.blue));
}

void PressNew() { Press('N', {VK_CONTROL}); }
void PressOpen() { Press('O', {VK_CONTROL}); }
void PressSave() { Press('S', {VK_CONTROL}); }
void ChooseSaveAs() {
    Press('F', {VK_MENU});
    Press('A');
}
void PressClose(const Huevox& huevox) { ::PostMessageA(huevox.window(), WM_SYSCOMMAND, SC_CLOSE, 0); }

void ExpectStill(const Huevox& huevox, const Color& color) {
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_TRUE(huevox.isRunning());
    EXPECT_EQ(huevox.sliders(), color);
    huevox.focusSlider(IDC_hsbGreen);
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.sample(0), ColorOf(color.red, color.green + 1, color.blue));
}

void ExpectPalette(const Huevox& huevox, const Palette& palette) {
    for (int mark = 0; mark < markCount; ++mark) {
        EXPECT_BECOMES(huevox.text(Name(mark)), palette.names[mark]);
        EXPECT_BECOMES(huevox.sample(mark), palette.colors[mark]);
        EXPECT_BECOMES(huevox.backColor(Name(mark)), white) << mark;
        EXPECT_EQ(huevox.isChecked(Option(mark)), mark == 0) << mark;
        EXPECT_EQ(huevox.isEnabled(IDC_picSample + mark), mark == 0) << mark;
    }
    EXPECT_EQ(huevox.sliders(), palette.colors[0]);
}

void ExpectNewPalette(const Huevox& huevox) {
    Palette palette;
    palette.names.fill("Type a colour name");
    palette.colors = {ColorOf(255, 0, 0),   ColorOf(255, 255, 0), ColorOf(0, 255, 0),
                      ColorOf(0, 255, 255), ColorOf(0, 0, 255),   ColorOf(255, 0, 255)};
    ExpectPalette(huevox, palette);
    EXPECT_BECOMES(huevox.title(), "Huevox - New palette");
}
