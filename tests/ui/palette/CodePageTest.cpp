// Which characters do names, templates, files and settings hold where the system has another code page? Run
// once in each: HUEVOX_CODE_PAGE says which, else it is that of Western Europe.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "tests/driver/FormatDialog.h"
#include "tests/driver/Palettes.h"
#include "toolkit/platform/Text.h"

namespace {

struct CodePageSample {
    int number;
    const char* program;
    std::string held;   ///< one character that takes one unit
    std::string bytes;  ///< the same in a file
    std::string
        other;  ///< and one that no file can hold; in UTF-8 there is none, and this one takes two units
    std::string shown;  ///< what a box makes of it
};

// In the Japanese one the second byte of a character may be that of a backslash.
const std::vector<CodePageSample> samples = {{1252, HUEVOX_EXE, "é", "\xE9", "Ж", "?"},
                                             {1251, HUEVOX_EXE, "Ж", "\xC6", "é", "?"},
                                             {932, HUEVOX_EXE, "ソ", "\x83\x5C", "é", "?"},
                                             {65001, HUEVOX_UTF8_EXE, "表", "\xE8\xA1\xA8", "🎨", "🎨"}};

const CodePageSample& Sample() {
    const char* const wanted = std::getenv("HUEVOX_CODE_PAGE");
    const int number = wanted ? std::atoi(wanted) : 1252;
    const auto found = std::ranges::find(samples, number, &CodePageSample::number);
    return found == samples.end() ? samples.front() : *found;
}

std::string Repeated(const std::string& text, int count) {
    std::string result;
    for (; count > 0; --count) result += text;
    return result;
}

class CodePage : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        // The one of UTF-8 is the program's own.
        ASSERT_EQ(::GetACP(), sample.number == 65001 ? 1252U : static_cast<UINT>(sample.number));
    }

    /// Puts the caret into an empty name box.
    static void empty(const Huevox& huevox, int mark) {
        huevox.retype(Name(mark), "x");
        Press(VK_BACK);
        ASSERT_BECOMES(huevox.text(Name(mark)), "");
    }

    const CodePageSample& sample = Sample();
};

}  // namespace

TEST_F(CodePage, ANameTakesItsCharactersAndShowsAQuestionMarkForAnyOther) {
    const Huevox huevox{std::string(sample.program)};
    empty(huevox, 0);
    Type("a" + sample.held + sample.other);
    EXPECT_BECOMES(huevox.text(Name(0)), "a" + sample.held + sample.shown);
    CopyElsewhere(sample.other + sample.held);
    Press('V', {VK_CONTROL});
    EXPECT_BECOMES(huevox.text(Name(0)), "a" + sample.held + sample.shown + sample.shown + sample.held);
}

TEST_F(CodePage, ANameHas21Characters) {
    const Huevox huevox{std::string(sample.program)};
    empty(huevox, 1);
    const std::string longest = Repeated(sample.held, 20);
    CopyElsewhere(longest);
    Press('V', {VK_CONTROL});
    ASSERT_BECOMES(huevox.text(Name(1)), longest);
    Type("🎨xy");
    // Half a character does not go in; a question mark does.
    EXPECT_BECOMES(huevox.text(Name(1)), longest + (sample.number == 65001 ? "x" : "?"));
}

TEST_F(CodePage, AFileHasTheBytesAndGivesTheNamesBack) {
    const std::string name = sample.held + "]" + sample.held + " x";
    const std::string bytes = sample.bytes + "]" + sample.bytes + " x";
    const Huevox huevox{std::string(sample.program)};
    empty(huevox, 0);
    CopyElsewhere(name);
    Press('V', {VK_CONTROL});
    ASSERT_BECOMES(huevox.text(Name(0)), name);
    SaveNewPalette(huevox, PathOf("saved.txt"));
    const std::string saved = ContentOf(PathOf("saved.txt"));
    EXPECT_NE(saved.find("\r\n[Huevox data]\r\n" + bytes + "\r\n255,0,0\r\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("\r\n[" + bytes + "]\r\nHTML Hex: #FF0000\r\n"), std::string::npos) << saved;
    PressNew();
    ExpectNewPalette(huevox);
    OpenPalette(huevox, PathOf("saved.txt"));
    EXPECT_BECOMES(huevox.text(Name(0)), name);
    ChooseSaveAs();
    ChoosePath(huevox, saveTitle, PathOf("copy.txt"));
    ASSERT_BECOMES(huevox.title(), "Huevox - copy.txt");
    EXPECT_EQ(ContentOf(PathOf("copy.txt")), saved);
}

TEST_F(CodePage, NamesOfAFileAreCutTo21Characters) {
    WriteContent(PathOf("long.txt"), PaletteOf(Repeated(sample.bytes, 22), "1,2,3"));
    const Huevox huevox{std::string(sample.program)};
    OpenPalette(huevox, PathOf("long.txt"));
    EXPECT_BECOMES(huevox.text(Name(5)), Repeated(sample.held, 21));
}

TEST_F(CodePage, APlaceholderIsInsertedBehindItsCharacters) {
    StoreText("CustomFormat", Repeated(sample.held, 246));
    StoreText("FormatIndex", "11");
    const Huevox huevox{std::string(sample.program)};
    const FormatDialog dialog(huevox);
    EXPECT_EQ(dialog.selection(), (std::pair{246, 246}));
    dialog.select(3, 0);
    const std::string inserted = Repeated(sample.held, 3) + "%DR%" + Repeated(sample.held, 243);
    dialog.insert(IDC_cmdDR, inserted);
    EXPECT_BECOMES(dialog.selection(), (std::pair{7, 7}));
    dialog.click(IDC_cmdOK);
    EXPECT_EQ(StoredText("CustomFormat"), inserted);
    const std::string code = Repeated(sample.bytes, 3) + "255" + Repeated(sample.bytes, 243);
    EXPECT_BECOMES(ClipboardText(), code);
    EXPECT_EQ(Utf8(ClipboardUnicodeText()), Repeated(sample.held, 3) + "255" + Repeated(sample.held, 243));
}

TEST_F(CodePage, AStoredTemplateIsTakenAsAFileCanHoldIt) {
    StoreText("CustomFormat", sample.held + sample.other + "%UR%");
    StoreText("FormatIndex", "11");
    const Huevox huevox{std::string(sample.program)};
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), sample.held + sample.shown + "FF");
    const FormatDialog dialog(huevox);
    EXPECT_EQ(dialog.text(), sample.held + sample.shown + "%UR%");
    dialog.click(IDC_cmdCancel);
    EXPECT_EQ(StoredText("CustomFormat"), sample.held + sample.other + "%UR%");
}

TEST_F(CodePage, TheStandardFolderMayHaveAnyName) {
    const std::string folder = PathOf("Жé表" + sample.other);
    std::filesystem::create_directory(Wide(folder));
    StoreText("StandardFolder", folder);
    const Huevox huevox{std::string(sample.program)};
    PressSave();
    ChoosePath(huevox, saveTitle, "Ж表.txt");
    EXPECT_BECOMES(huevox.title(), "Huevox - Ж表.txt");
    EXPECT_TRUE(Exists(folder + "\\Ж表.txt"));
}
