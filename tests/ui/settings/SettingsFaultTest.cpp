// Does the program start, work and end with anything at all in its settings?
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "tests/driver/Palettes.h"
#include "tests/driver/Rights.h"

namespace {

class SettingsFaults : public UiTest {};

struct Content {
    const char* name;
    DWORD type;
    std::string bytes;
    std::string readsAs;  ///< "" also for what is no text
};

std::vector<Content> AllContents() {
    const std::string one = "1";
    return {{"an empty text", REG_SZ, "", ""},
            {"a blank", REG_SZ, " ", " "},
            {"a usable number", REG_SZ, one, one},
            {"a number with its NUL", REG_SZ, {"1\0", 2}, one},
            {"bytes that begin with a NUL", REG_SZ, {"\0\1\2\xFF", 4}, ""},
            {"bytes with a NUL inside", REG_SZ, {"1\0\x80\xFF\n", 5}, one},
            {"high bytes and line ends", REG_SZ, "\x80\x99\xFF\r\n\t", "€™ÿ\r\n\t"},
            {"a megabyte", REG_SZ, std::string(1'000'000, 'x'), std::string(1'000'000, 'x')},
            {"a DWORD", REG_DWORD, {"\7\0\0\0", 4}, ""},
            {"a QWORD", REG_QWORD, {"\7\0\0\0\0\0\0\0", 8}, ""},
            {"binary data", REG_BINARY, "text", ""},
            {"no bytes of binary data", REG_BINARY, "", ""},
            {"several texts", REG_MULTI_SZ, {"a\0b\0\0", 5}, ""},
            {"a text to be expanded", REG_EXPAND_SZ, {"%TEMP%\0", 7}, ""},
            {"data of no type", REG_NONE, "text", ""}};
}

const std::vector<std::string> valueNames = {"CustomFormat", "FormatIndex", "SortIndex", "PromptToSave",
                                             "StandardFolder"};

bool IsUsable(const std::string& valueName, const std::string& text) {
    if (valueName == "CustomFormat") return text.size() <= 250;
    // "1" is in the range of every number, and no folder.
    return text.empty() || (text == "1" && valueName != "StandardFolder");
}

void Store(const std::string& valueName, const Content& content) {
    HKEY key = nullptr;
    ::RegCreateKeyA(HKEY_CURRENT_USER, settingsKey, &key);
    const auto* bytes = reinterpret_cast<const BYTE*>(content.bytes.data());
    const auto size = static_cast<DWORD>(content.bytes.size());
    ASSERT_EQ(::RegSetValueExA(key, valueName.c_str(), 0, content.type, bytes, size), ERROR_SUCCESS);
    ::RegCloseKey(key);
}

/// Changes a colour and expects the notation to follow.
void Use(const Huevox& huevox, int notation) {
    EXPECT_EQ(huevox.listIndex(), notation);
    huevox.focusSlider(IDC_hsbGreen);
    Press(VK_RIGHT);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), notation == 0 ? "#FF0100" : "#ff0100");
}

void EndWithoutSaving(const Huevox& huevox) {
    PressClose(huevox);
    AnswerQuestion(huevox, IDNO);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

void TryToLiveWith(const std::string& valueName, const Content& content) {
    SCOPED_TRACE(valueName + " is " + content.name);
    ::RegDeleteTreeA(HKEY_CURRENT_USER, settingsKey);
    Store(valueName, content);
    const bool isUsable = IsUsable(valueName, content.readsAs);
    Huevox huevox(Huevox::DoNotWait{});
    if (!isUsable) {
        const HWND message = WaitForMessage(huevox, unusableSettings);
        ExpectDefaultsStored();
        Answer(message, IDOK);
    }
    ASSERT_TRUE(huevox.waitForWindow());
    EXPECT_EQ(huevox.dialogCount(), 0);
    Use(huevox, valueName == "FormatIndex" && content.readsAs == "1" ? 1 : 0);
    EndWithoutSaving(huevox);
}

/// Nobody may open the key, for as long as the value lives.
class DeniedKey {
public:
    DeniedKey() {
        ::RegCreateKeyA(HKEY_CURRENT_USER, settingsKey, &key);
        setRights(nothing);
    }
    DeniedKey(const DeniedKey&) = delete;
    DeniedKey& operator=(const DeniedKey&) = delete;
    ~DeniedKey() {
        setRights(everything);
        ::RegCloseKey(key);
    }

private:
    void setRights(const char* rights) const {
        SetRights(rights, [&](PSECURITY_DESCRIPTOR descriptor) {
            EXPECT_EQ(::RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, descriptor), ERROR_SUCCESS);
        });
    }

    HKEY key = nullptr;
};

}  // namespace

TEST_F(SettingsFaults, AreLivedWithOrRepaired) {
    const std::vector<Content> contents = AllContents();
    // All of them when HUEVOX_ALL_SETTINGS is set, else every ninth.
    const std::size_t stride = std::getenv("HUEVOX_ALL_SETTINGS") ? 1 : 9;
    int starts = 0;
    for (std::size_t pair = 0; pair < contents.size() * valueNames.size(); pair += stride) {
        TryToLiveWith(valueNames[pair % valueNames.size()], contents[pair / valueNames.size()]);
        ++starts;
    }
    std::printf("%d starts with faulty settings\n", starts);
}

TEST_F(SettingsFaults, AKeyThatCannotBeOpenedReadsAsTheDefaults) {
    StoreText("FormatIndex", "1");
    StoreText("SortIndex", "9");
    const DeniedKey denied;
    HKEY key = nullptr;
    ASSERT_NE(::RegOpenKeyExA(HKEY_CURRENT_USER, settingsKey, 0, KEY_ALL_ACCESS, &key), ERROR_SUCCESS);
    const Huevox huevox;
    EXPECT_EQ(huevox.dialogCount(), 0);
    Use(huevox, 0);
    EndWithoutSaving(huevox);
}
