// Does an access key lead where it is meant to, whatever the user's own texts contain?
#include <cctype>
#include <string>
#include <vector>

#include "tests/driver/OptionsDialog.h"
#include "tests/driver/UiTest.h"

namespace {

class AccessKeys : public UiTest {};

/// The letter behind the first ampersand that does not stand for itself, in upper case; 0 without one.
char AccessKeyOf(const std::string& text) {
    for (std::size_t at = text.find('&'); at != std::string::npos; at = text.find('&', at + 2)) {
        if (at + 1 < text.size() && text[at + 1] != '&') return static_cast<char>(std::toupper(text[at + 1]));
    }
    return 0;
}

struct Targets {
    char key;
    std::vector<int> ids;
};

/// Windows looks at the text of every control that does not want characters, whatever its class.
BOOL CALLBACK AddTarget(HWND control, LPARAM parameter) {
    auto& targets = *reinterpret_cast<Targets*>(parameter);
    const bool isOpen = ::IsWindowVisible(control) && ::IsWindowEnabled(control);
    if (isOpen && !(AnswerOf(control, WM_GETDLGCODE) & DLGC_WANTCHARS) &&
        AccessKeyOf(TextOf(control)) == targets.key)
        targets.ids.push_back(::GetDlgCtrlID(control));
    return TRUE;
}

std::vector<int> TargetsOf(HWND form, char key) {
    Targets targets{key, {}};
    ::EnumChildWindows(form, AddTarget, reinterpret_cast<LPARAM>(&targets));
    return targets.ids;
}

/// A folder that is there while the value lives.
class MadeFolder {
public:
    explicit MadeFolder(const char* name) : name(name) { ::CreateDirectoryA(name, nullptr); }
    MadeFolder(const MadeFolder&) = delete;
    MadeFolder& operator=(const MadeFolder&) = delete;
    ~MadeFolder() { ::RemoveDirectoryA(name); }

private:
    const char* name;
};

}  // namespace

TEST_F(AccessKeys, AltHOpensTheHelpMenuWhateverTemplateAndNamesContain) {
    StoreText("CustomFormat", "&Hex %UR%");
    const Huevox huevox;
    huevox.retype(Name(0), "&Hello");
    huevox.chooseNotation(11);
    Click(huevox.control(IDC_chkColorPick));
    ASSERT_BECOMES(::IsWindowEnabled(huevox.control(IDC_picSample)), TRUE);
    ASSERT_BECOMES(huevox.text(IDC_lblClipboard), "&Hex FF");
    ASSERT_BECOMES(huevox.text(IDC_picSample), "&Hello #FF0000");
    EXPECT_EQ(TargetsOf(huevox.window(), 'H'), std::vector<int>());
    Press('H', {VK_MENU});
    Press('A');
    EXPECT_BECOMES(TextOf(::GetForegroundWindow()), "About Huevox");
}

TEST_F(AccessKeys, AFieldOfTheMainWindowWantsCharactersAsATextBoxDoes) {
    const Huevox huevox;
    for (const int id : {IDC_lblClipboard, IDC_txtName})
        EXPECT_TRUE(huevox.send(id, WM_GETDLGCODE) & DLGC_WANTCHARS) << id;
}

TEST_F(AccessKeys, AltHChangesTheStandardFolderWhateverItIsCalled) {
    const MadeFolder folder("C:\\&Hexagon");
    StoreText("StandardFolder", "C:\\&Hexagon");
    const Huevox huevox;
    const OptionsDialog options(huevox);
    ASSERT_EQ(options.folder(), "C:\\&Hexagon");
    EXPECT_EQ(TargetsOf(options.window(), 'H'), std::vector<int>{IDC_cmdChange});
    Press('H', {VK_MENU});
    EXPECT_BECOMES(TextOf(::GetForegroundWindow()), "Browse for Folder");
}
