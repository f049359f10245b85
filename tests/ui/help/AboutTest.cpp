// What does the about box say, where do its links lead, and how is it closed?
#include <functional>
#include <vector>

#include "Addresses.h"
#include "tests/driver/AboutBox.h"
#include "tests/driver/PickerWindow.h"
#include "tests/ui/help/ShellCommand.h"

namespace {

class About : public PaletteTest {};

std::vector<int> ControlsInOrder(HWND window) {
    std::vector<int> ids;
    for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        ids.push_back(::GetDlgCtrlID(child));
    return ids;
}

/// The version that the system reads from the program's file.
std::string VersionOfFile() {
    std::vector<char> info(::GetFileVersionInfoSizeA(HUEVOX_EXE, nullptr));
    EXPECT_TRUE(::GetFileVersionInfoA(HUEVOX_EXE, 0, static_cast<DWORD>(info.size()), info.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT size = 0;
    if (!::VerQueryValueA(info.data(), "\\", reinterpret_cast<void**>(&fixed), &size)) return "(none)";
    return std::to_string(HIWORD(fixed->dwProductVersionMS)) + '.' +
           std::to_string(LOWORD(fixed->dwProductVersionMS)) + '.' +
           std::to_string(HIWORD(fixed->dwProductVersionLS));
}

/// The stand-in writes its line a moment after the program has started it.
bool StaysUnopened() {
    return Throughout(1'000, [] { return ShellCommand::line().empty(); });
}

bool Holds(const std::string& text, const char* part) { return text.find(part) != std::string::npos; }

}  // namespace

TEST_F(About, SaysWhatTheProgramIs) {
    const Huevox huevox;
    const AboutBox box(huevox);
    EXPECT_EQ(TextOf(box.window()), "About Huevox");
    EXPECT_EQ(box.text(IDC_lblTitle), "Huevox 2004");
    EXPECT_EQ(box.text(IDC_lblSlogan),
              "The smart and easy colour manager for developers, designers, and other artistic people.");
    EXPECT_EQ(box.text(IDC_lblMoreInfo), "Learn more about Huevox on the web:");
    EXPECT_EQ(box.text(IDC_lblFeedbackInfo), "Send comments and suggestions to:");
    EXPECT_EQ(box.text(IDC_lblVersion), "Version " + VersionOfFile());
    EXPECT_EQ(box.text(IDC_lblCopyright), "Copyright © 2004–2026 the Huevox authors");
    EXPECT_TRUE(Holds(box.text(IDC_lblDisclaimer), "free"));
    EXPECT_TRUE(Holds(box.text(IDC_lblDisclaimer), "without warranties of any kind"));
    EXPECT_TRUE(Holds(box.text(IDC_lblDisclaimer), "no responsibility"));
}

TEST_F(About, ItsLinksAreTheAddressesOfTheBuild) {
    const Huevox huevox;
    const AboutBox box(huevox);
    EXPECT_EQ(box.text(IDC_lblLink), homePageAddress);
    EXPECT_EQ(box.text(IDC_lblMailLink), mailAddress);
    EXPECT_TRUE(box.text(IDC_lblLink).starts_with("http://"));
    EXPECT_TRUE(box.text(IDC_lblLink).ends_with("/huevox.htm"));
}

TEST_F(About, ItsControlsComeInTheirOrder) {
    const Huevox huevox;
    const AboutBox box(huevox);
    EXPECT_EQ(ControlsInOrder(box.window()),
              (std::vector<int>{IDC_picInfo, IDC_cmdOK, IDC_lblDisclaimer, IDC_lblSlogan, IDC_lblLink,
                                IDC_lblMailLink, IDC_lblFeedbackInfo, IDC_lblMoreInfo, IDC_lblTitle,
                                IDC_lblCopyright, IDC_lblVersion}));
}

TEST_F(About, TabGoesFromTheButtonToTheLinksAndRound) {
    const Huevox huevox;
    const AboutBox box(huevox);
    box.tabTo(IDC_lblLink);
    box.tabTo(IDC_lblMailLink);
    box.tabTo(IDC_cmdOK);
}

TEST_F(About, EveryWayOfClosingClosesItOnlyAndGivesTheFocusBack) {
    const Huevox huevox;
    const AboutBox* open = nullptr;
    const std::vector<std::function<void()>> ways = {
        [] { Press(VK_ESCAPE); },
        [] { Press(VK_RETURN); },
        [] { Press(VK_SPACE); },
        [&] { Click(open->control(IDC_cmdOK)); },
        [&] { ::PostMessageA(open->window(), WM_SYSCOMMAND, SC_CLOSE, 0); },
    };
    huevox.focusByClick(IDC_txtSetGreen);
    for (const auto& close : ways) {
        const AboutBox box(huevox);
        open = &box;
        close();
        box.expectClosed();
        EXPECT_BECOMES(huevox.focused(), IDC_txtSetGreen);
    }
    EXPECT_TRUE(huevox.isRunning());
}

TEST_F(About, EscapeOnALinkClosesItToo) {
    const Huevox huevox;
    const AboutBox box(huevox);
    box.tabTo(IDC_lblLink);
    Press(VK_ESCAPE);
    box.expectClosed();
}

TEST_F(About, AClickOnALinkHandsItsAddressToTheShell) {
    const ShellCommand browser("http", ShellCommand::To::standIn);
    const ShellCommand mailer("mailto", ShellCommand::To::standIn);
    const Huevox huevox;
    const AboutBox box(huevox);
    Click(box.startOf(IDC_lblLink));
    EXPECT_BECOMES(ShellCommand::line(), ShellCommand::lineFor(homePageAddress));
    ShellCommand::forgetLine();
    Click(box.startOf(IDC_lblMailLink));
    EXPECT_BECOMES(ShellCommand::line(), ShellCommand::lineFor(std::string("mailto:") + mailAddress));
    EXPECT_TRUE(box.window());
}

TEST_F(About, EnterAndSpaceOpenTheLinkThatHasTheFocus) {
    const ShellCommand browser("http", ShellCommand::To::standIn);
    const ShellCommand mailer("mailto", ShellCommand::To::standIn);
    const Huevox huevox;
    const AboutBox box(huevox);
    box.tabTo(IDC_lblLink);
    Press(VK_RETURN);
    EXPECT_BECOMES(ShellCommand::line(), ShellCommand::lineFor(homePageAddress));
    ShellCommand::forgetLine();
    box.tabTo(IDC_lblMailLink);
    Press(VK_SPACE);
    EXPECT_BECOMES(ShellCommand::line(), ShellCommand::lineFor(std::string("mailto:") + mailAddress));
    EXPECT_TRUE(box.window());
}

TEST_F(About, AHeldKeyOpensTheLinkOnce) {
    const ShellCommand browser("http", ShellCommand::To::standIn);
    const Huevox huevox;
    const AboutBox box(huevox);
    box.tabTo(IDC_lblLink);
    KeyDown(VK_RETURN);
    EXPECT_BECOMES(ShellCommand::line(), ShellCommand::lineFor(homePageAddress));
    ShellCommand::forgetLine();
    // As the keyboard repeats it: Wine may release a key at any time that no hand holds.
    constexpr LPARAM repeated = 0x401C0001;
    ::PostMessageA(box.control(IDC_lblLink), WM_KEYDOWN, VK_RETURN, repeated);
    KeyUp(VK_RETURN);
    box.tabTo(IDC_lblMailLink);  // the keys before it have arrived
    EXPECT_TRUE(StaysUnopened());
}

TEST_F(About, ACaptionWithBlanksIsPassedWithBlanks) {
    const ShellCommand mailer("mailto", ShellCommand::To::standIn);
    const Huevox huevox;
    const AboutBox box(huevox);
    ::SendMessageA(box.control(IDC_lblMailLink), WM_SETTEXT, 0,
                   reinterpret_cast<LPARAM>(" the authors @ huevox.example"));
    Click(box.startOf(IDC_lblMailLink));
    EXPECT_BECOMES(ShellCommand::line(), ShellCommand::lineFor("mailto: the authors @ huevox.example"));
}

TEST_F(About, OnlyTheTextIsTheLink) {
    const ShellCommand browser("http", ShellCommand::To::standIn);
    const Huevox huevox;
    const AboutBox box(huevox);
    RECT area{};
    ::GetClientRect(box.control(IDC_lblLink), &area);
    Click(OnScreen(box.control(IDC_lblLink), {area.right - 5, 10}));
    PressButton(box.startOf(IDC_lblLink));
    ReleaseButton(CenterOf(box.control(IDC_lblSlogan)));
    box.tabTo(IDC_lblMailLink);  // the input before it has arrived; the press has given the link the focus
    EXPECT_TRUE(StaysUnopened());
}

TEST_F(About, WithoutABrowserOrMailProgramNothingIsShown) {
    const ShellCommand browser("http", ShellCommand::To::nothing);
    const ShellCommand mailer("mailto", ShellCommand::To::nothing);
    const Huevox huevox;
    const AboutBox box(huevox);
    Click(box.startOf(IDC_lblLink));
    EXPECT_BECOMES(box.focused(), IDC_lblLink);
    box.tabTo(IDC_lblMailLink);
    Press(VK_RETURN);
    box.tabTo(IDC_cmdOK);  // the keys before it have done what they do
    EXPECT_EQ(huevox.dialogCount(), 0);
    Press(VK_RETURN);
    box.expectClosed();
}

TEST_F(About, NoOtherWindowOfTheProgramTakesInputMeanwhile) {
    const Huevox huevox;
    const PickerWindow failsafe(huevox, failsafeGrid);
    failsafe.moveTo(0, 0);
    Click(huevox.control(Option(0)));
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
    const AboutBox box(huevox);
    EXPECT_FALSE(::IsWindowEnabled(huevox.window()));
    EXPECT_FALSE(failsafe.isEnabled());
    failsafe.click({3, 0});
    Click(huevox.control(Option(5)));
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuHelpAboutHuevox, 0);
    box.tabTo(IDC_lblLink);
    EXPECT_EQ(huevox.formCount("frmAbout"), 1);
    Press(VK_ESCAPE);
    box.expectClosed();
    EXPECT_TRUE(failsafe.isEnabled());
    EXPECT_TRUE(huevox.isChecked(Option(0)));
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}
