// May files and folders have names in any script, whatever the code page?
#include <filesystem>

#include "tests/driver/OptionsDialog.h"
#include "tests/driver/Palettes.h"
#include "tests/driver/ReplacedFile.h"
#include "tests/ui/palette/NotepadOn.h"
#include "toolkit/platform/Text.h"

namespace {

constexpr const char* folder = R"(C:\Huevox Palettes\Палитры 色見本 🎨)";

class FileNames : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        std::filesystem::create_directory(Wide(folder));
    }

    static std::string pathOf(std::string_view name) {
        return std::string(folder) + '\\' + std::string(name);
    }
};

}  // namespace

TEST_F(FileNames, AreSavedOpenedAndSavedAgain) {
    const std::string path = pathOf("Красные 赤 é 🎨.txt");
    const Huevox huevox;
    SaveNewPalette(huevox, path);
    EXPECT_TRUE(ContentOf(path).starts_with("THIS FILE WAS MADE IN HUEVOX. DO NOT EDIT.\r\n"));
    PressNew();
    ExpectNewPalette(huevox);
    OpenPalette(huevox, path);
    EXPECT_EQ(huevox.title(), "Huevox - Красные 赤 é 🎨.txt");
    ChangeColor(huevox);
    PressSave();
    EXPECT_TRUE(Eventually([&] { return ContentOf(path).find("\r\n255,1,0\r\n") != std::string::npos; }));
    EXPECT_EQ(huevox.dialogCount(), 0);
    Close(huevox);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Wide(folder)), {}), 1) << "no other file";
}

TEST_F(FileNames, GetTheExtensionAndAreAskedAboutBeforeTheyAreReplaced) {
    WriteContent(pathOf("Синие.txt"), "of another program");
    const Huevox huevox;
    PressSave();
    TypePath(huevox, saveTitle, pathOf("Синие"));
    AnswerReplacing(huevox, IDYES);
    EXPECT_BECOMES(huevox.title(), "Huevox - Синие.txt");
    EXPECT_NE(ContentOf(pathOf("Синие.txt")), "of another program");
}

TEST_F(FileNames, AreShownAsTheyAreWhenAFileIsRefused) {
    WriteContent(pathOf("Письмо 手紙.txt"), "no palette");
    const Huevox huevox;
    PressOpen();
    TypePath(huevox, openTitle, pathOf("Письмо 手紙.txt"));
    CloseMessage(huevox, "You tried to open the file\r\n\r\n" + pathOf("Письмо 手紙.txt") +
                             "\r\n\r\nThis file has not been made in Huevox and cannot be opened in Huevox");
    ExpectNewPalette(huevox);
}

TEST_F(FileNames, ReachNotepad) {
    WriteContent(pathOf("Зелёные 緑.txt"), PaletteOf("navy", "1,2,3"));
    const Huevox huevox;
    Press('I', {VK_CONTROL});
    ChoosePath(huevox, notepadTitle, pathOf("Зелёные 緑.txt"));
    const NotepadOn notepad("Зелёные 緑");
    EXPECT_NE(notepad.title.find("Зелёные 緑.txt"), std::string::npos) << notepad.title;
}

TEST_F(FileNames, OfTheStandardFolderAreTakenAsTheyAre) {
    StoreText("StandardFolder", folder);
    const Huevox huevox;
    {
        const OptionsDialog options(huevox);
        EXPECT_EQ(options.folder(), folder);
        options.close(IDC_cmdOK);
    }
    EXPECT_EQ(StoredText("StandardFolder"), folder);
    PressSave();
    ChoosePath(huevox, saveTitle, "赤.txt");
    EXPECT_BECOMES(huevox.title(), "Huevox - 赤.txt");
    EXPECT_TRUE(Exists(pathOf("赤.txt")));
}

TEST_F(FileNames, OfTheStandardFolderCountTheirLetterCase) {
    StoreText("StandardFolder", R"(C:\Huevox Palettes\палитры 色見本 🎨)");
    Huevox huevox(Huevox::DoNotWait{});
    Answer(WaitForMessage(huevox, unusableSettings), IDOK);
    ASSERT_TRUE(huevox.waitForWindow());
}

TEST_F(FileNames, OfTheProgramsFolderDoNotKeepItFromItsHelp) {
    std::filesystem::copy_file(HUEVOX_EXE, Wide(pathOf("Huevox.exe")));
    std::filesystem::copy_file("huevox.chm", Wide(pathOf("huevox.chm")));
    const Huevox huevox(pathOf("Huevox.exe"));
    Press(VK_F1);
    ASSERT_BECOMES(huevox.formCount("HH Parent"), 1);
    Close(huevox);
}
