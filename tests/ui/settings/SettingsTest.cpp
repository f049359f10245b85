// What does the program make of the settings that are stored?
#include <array>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/driver/OptionsDialog.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/UiTest.h"
#include "toolkit/platform/Text.h"

namespace {

class StoredSettings : public UiTest {};

void StoreNumber(const char* valueName, DWORD number) {
    HKEY key = nullptr;
    ::RegCreateKeyA(HKEY_CURRENT_USER, settingsKey, &key);
    ::RegSetValueExA(key, valueName, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number);
    ::RegCloseKey(key);
}

/// Tells the shell of another desktop folder.
class DesktopElsewhere {
public:
    explicit DesktopElsewhere(std::string_view folder) {
        ::RegOpenKeyW(HKEY_CURRENT_USER,
                      LR"(Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders)", &folders);
        DWORD size = before.size();
        ::RegQueryValueExW(folders, L"Desktop", nullptr, &type, before.data(), &size);
        beforeSize = size;
        const std::wstring wide = Wide(folder);
        ::RegSetValueExW(folders, L"Desktop", 0, REG_SZ, reinterpret_cast<const BYTE*>(wide.c_str()),
                         static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t)));
    }
    DesktopElsewhere(const DesktopElsewhere&) = delete;
    DesktopElsewhere& operator=(const DesktopElsewhere&) = delete;
    ~DesktopElsewhere() {
        ::RegSetValueExW(folders, L"Desktop", 0, type, before.data(), beforeSize);
        ::RegCloseKey(folders);
    }

private:
    HKEY folders = nullptr;
    DWORD type = REG_SZ;
    std::array<BYTE, 1024> before{};
    DWORD beforeSize = 0;
};

void ExpectRepair() {
    Huevox huevox(Huevox::DoNotWait{});
    const HWND message = WaitForMessage(huevox, unusableSettings);
    const HWND window = ::FindWindowA("frmMain", nullptr);
    EXPECT_FALSE(window && ::IsWindowVisible(window));
    ExpectDefaultsStored();
    Answer(message, IDOK);
    ASSERT_TRUE(huevox.waitForWindow());
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "#FF0000");
}

}  // namespace

TEST_F(StoredSettings, AFirstStartWritesNothingAndSaysNothing) {
    const Huevox huevox;
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_FALSE(HasStoredSettings());
}

TEST_F(StoredSettings, ChooseTheNotationAndTheTemplate) {
    StoreText("FormatIndex", "11");
    StoreText("CustomFormat", "<%UR%>");
    const Huevox huevox;
    EXPECT_BECOMES(huevox.listIndex(), 11);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "<FF>");
}

TEST_F(StoredSettings, ATemplateOf250CharactersIsKept) {
    const std::string longest(250, 'x');
    StoreText("CustomFormat", longest);
    StoreText("FormatIndex", "11");
    const Huevox huevox;
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), longest);
    EXPECT_EQ(huevox.dialogCount(), 0);
}

TEST_F(StoredSettings, ATemplateOf251CharactersIsRepaired) {
    StoreText("CustomFormat", std::string(251, 'x'));
    ExpectRepair();
}

TEST_F(StoredSettings, AValueOfAMegabyteIsRepaired) {
    StoreText("StandardFolder", std::string(1'000'000, 'x'));
    ExpectRepair();
}

TEST_F(StoredSettings, ANotationOutsideTheListIsRepaired) {
    StoreText("FormatIndex", "12");
    ExpectRepair();
}

TEST_F(StoredSettings, ATruthWordIsRepaired) {
    StoreText("PromptToSave", "True");
    StoreText("FormatIndex", "3");
    ExpectRepair();
}

TEST_F(StoredSettings, AFolderThatIsGoneIsRepaired) {
    StoreText("StandardFolder", "C:\\no such folder");
    ExpectRepair();
}

TEST_F(StoredSettings, AValueOfAnotherTypeReadsAsItsDefaultWithoutRepair) {
    StoreNumber("SortIndex", 7);
    StoreNumber("FormatIndex", 7);
    const Huevox huevox;
    EXPECT_BECOMES(huevox.listIndex(), 0);
    EXPECT_EQ(huevox.dialogCount(), 0);
}

TEST_F(StoredSettings, ATextWithoutAClosingNulReadsAsItIs) {
    StoreText("FormatIndex", "5");
    const Huevox huevox;
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "$000000FF");
}

TEST_F(StoredSettings, WithoutADesktopFolderTheProgramStartsTheSame) {
    const DesktopElsewhere desktop("Q:\\nowhere\\Desktop");
    const Huevox huevox;
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
    EXPECT_EQ(huevox.dialogCount(), 0);
    EXPECT_FALSE(HasStoredSettings());
}

TEST_F(StoredSettings, ADesktopOfAnyNameIsTheFirstStandardFolder) {
    const std::string name = R"(C:\users\Ольга 花子 🎨)";
    std::filesystem::create_directory(Wide(name));
    {
        const DesktopElsewhere desktop(name);
        {
            const Huevox huevox;
            SaveNewPalette(huevox, "赤.txt");
            EXPECT_TRUE(Exists(name + R"(\赤.txt)"));
        }
        const Huevox huevox;
        const OptionsDialog options(huevox);
        EXPECT_EQ(options.folder(), name);
        options.close(IDC_cmdCancel);
    }
    std::filesystem::remove_all(Wide(name));
}

TEST_F(StoredSettings, AnEmptyTextReadsAsEmpty) {
    StoreText("CustomFormat", "");
    StoreText("FormatIndex", "");
    StoreText("SortIndex", "");
    StoreText("PromptToSave", "");
    StoreText("StandardFolder", "");
    const Huevox huevox;
    EXPECT_BECOMES(huevox.listIndex(), 0);
    EXPECT_EQ(huevox.dialogCount(), 0);
}
