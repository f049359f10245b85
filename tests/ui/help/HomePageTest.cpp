// What does Visit Huevox Home Page do?
#include "Addresses.h"
#include "tests/ui/help/ShellCommand.h"

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

/// Nothing is registered for addresses of the web, for as long as the value lives.
class WithoutBrowser {
public:
    WithoutBrowser() {
        CopyKey(webKey, savedKey);
        EXPECT_EQ(::RegDeleteTreeA(HKEY_CLASSES_ROOT, webKey), ERROR_SUCCESS);
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
    const ShellCommand browser(webKey, ShellCommand::To::standIn);
    const Huevox huevox;
    ChooseHomePage();
    EXPECT_BECOMES(ShellCommand::line(), ShellCommand::lineFor(homePageAddress));
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
