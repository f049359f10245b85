// What does Visit Huevox Home Page do?
#include <filesystem>

#include "Addresses.h"
#include "tests/driver/Palettes.h"

namespace {

class HomePage : public PaletteTest {};

constexpr const char* webKey = "http";
constexpr const char* savedKey = "Huevox saved http";

void CopyKey(const char* from, const char* to) {
    HKEY source = nullptr;
    HKEY target = nullptr;
    EXPECT_EQ(::RegOpenKeyA(HKEY_CLASSES_ROOT, from, &source), ERROR_SUCCESS);
    EXPECT_EQ(::RegCreateKeyA(HKEY_CLASSES_ROOT, to, &target), ERROR_SUCCESS);
    EXPECT_EQ(::RegCopyTreeA(source, nullptr, target), ERROR_SUCCESS);
    ::RegCloseKey(source);
    ::RegCloseKey(target);
}

/// Addresses of the web are opened by another program, or by none, for as long as the value lives.
class WithoutBrowser {
public:
    WithoutBrowser() {
        CopyKey(webKey, savedKey);
        EXPECT_EQ(::RegDeleteTreeA(HKEY_CLASSES_ROOT, webKey), ERROR_SUCCESS);
    }
    explicit WithoutBrowser(const std::string& command) : WithoutBrowser() {
        EXPECT_EQ(::RegSetKeyValueA(HKEY_CLASSES_ROOT, webKey, "URL Protocol", REG_SZ, "", 1), ERROR_SUCCESS);
        EXPECT_EQ(::RegSetKeyValueA(HKEY_CLASSES_ROOT, "http\\shell\\open\\command", nullptr, REG_SZ,
                                    command.c_str(), static_cast<DWORD>(command.size() + 1)),
                  ERROR_SUCCESS);
    }
    WithoutBrowser(const WithoutBrowser&) = delete;
    WithoutBrowser& operator=(const WithoutBrowser&) = delete;
    ~WithoutBrowser() {
        ::RegDeleteTreeA(HKEY_CLASSES_ROOT, webKey);
        CopyKey(savedKey, webKey);
        ::RegDeleteTreeA(HKEY_CLASSES_ROOT, savedKey);
    }
};

void ChooseHomePage() {
    Press('H', {VK_MENU});
    Press('V');
}

}  // namespace

TEST_F(HomePage, IsHandedToTheBrowserExactly) {
    const std::string browser = std::filesystem::absolute(HUEVOX_STAND_IN).string();
    const WithoutBrowser standIn('"' + browser + R"(" "%1")");
    const Huevox huevox;
    ChooseHomePage();
    const std::string command = '"' + browser + "\" \"" + homePageAddress + '"';
    EXPECT_BECOMES(ContentOf(PathOf("command.txt")), command);
    EXPECT_EQ(huevox.dialog(), nullptr);
}

TEST_F(HomePage, IsAnAddressOfTheWebWithItsPage) {
    const std::string address = homePageAddress;
    EXPECT_TRUE(address.starts_with("http://")) << address;
    EXPECT_TRUE(address.ends_with("/huevox.htm")) << address;
}

TEST_F(HomePage, WithoutABrowserShowsNothing) {
    const WithoutBrowser none;
    const Huevox huevox;
    ChooseHomePage();
    Press(VK_LEFT);
    EXPECT_BECOMES(huevox.sliders(), ColorOf(254, 0, 0));
    EXPECT_TRUE(Throughout(500, [&] { return huevox.dialog() == nullptr; }));
    EXPECT_TRUE(huevox.isRunning());
}
