// How is a palette file opened in Notepad?
#include "tests/driver/Palettes.h"
#include "tests/driver/ReplacedFile.h"
#include "tests/ui/palette/NotepadOn.h"

namespace {

class OpeningInNotepad : public PaletteTest {};

constexpr const char* notepadProgram = "C:\\windows\\notepad.exe";

}  // namespace

TEST_F(OpeningInNotepad, StartsNotepadWithAPathThatHoldsBlanks) {
    WriteContent(OtherPathOf("my palette.txt"), PaletteOf("navy", "1,2,3"));
    const Huevox huevox;
    Click(huevox.toolButton(IDM_mnuFileOpenInNotepad));
    ChoosePath(huevox, notepadTitle, OtherPathOf("my palette.txt"));
    {
        const NotepadOn notepad("my palette");
        EXPECT_NE(notepad.title.find("my palette.txt"), std::string::npos) << notepad.title;
    }
    ExpectNewPalette(huevox);
}

TEST_F(OpeningInNotepad, ThePathIsNotQuoted) {
    const ReplacedFile other(notepadProgram, HUEVOX_STAND_IN);
    const Huevox huevox;
    Press('I', {VK_CONTROL});
    ChoosePath(huevox, notepadTitle, OtherPathOf("my palette.txt"));
    const std::string command = "C:\\windows\\Notepad.exe " + OtherPathOf("my palette.txt");
    EXPECT_BECOMES(ContentOf(PathOf("command.txt")), command);
}

TEST_F(OpeningInNotepad, ThatDoesNotStartIsTold) {
    const ReplacedFile none(notepadProgram);
    const Huevox huevox;
    Press('I', {VK_CONTROL});
    TypePath(huevox, notepadTitle, PathOf("any.txt"));
    CloseMessage(huevox, "Could not open file in Notepad.");
    ExpectNewPalette(huevox);
}

TEST_F(OpeningInNotepad, CancelledDoesNothing) {
    const Huevox huevox;
    Press('I', {VK_CONTROL});
    CancelFileDialog(huevox, notepadTitle);
    EXPECT_EQ(::FindWindowA("Notepad", nullptr), nullptr);
    ExpectNewPalette(huevox);
}
