// How does the program end?
#include "tests/driver/UiTest.h"

namespace {

class Closing : public UiTest {};

}  // namespace

TEST_F(Closing, TheCloseBoxEndsTheProgramWithCode0AndAsksNothingForAnUnchangedPalette) {
    const Huevox huevox;
    ::PostMessageA(huevox.window(), WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(Closing, FileExitEndsTheProgram) {
    const Huevox huevox;
    Press('F', {VK_MENU});
    Press('E');
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(Closing, AltF4EndsTheProgram) {
    const Huevox huevox;
    ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
    Press(VK_F4, {VK_MENU});
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

TEST_F(Closing, IsIgnoredWhileAMessageIsOpen) {
    const Huevox huevox;
    const HWND message = BringRefusal(huevox);
    ASSERT_TRUE(message);
    ::PostMessageA(huevox.window(), WM_CLOSE, 0, 0);
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuFileExit, 0);
    ::PostMessageA(huevox.window(), WM_COMMAND, MAKEWPARAM(IDM_mnuFileExit, 1), 0);
    ::PostMessageA(huevox.window(), WM_COMMAND, IDM_mnuFileExit,
                   reinterpret_cast<LPARAM>(huevox.control(IDC_tbrTools)));
    Answer(message, IDOK);
    EXPECT_BECOMES(huevox.focused(), IDC_txtSetRed);
    EXPECT_TRUE(huevox.isRunning());
}

TEST_F(Closing, WithTheSessionOnlyWhenItReallyEnds) {
    const Huevox huevox;
    EXPECT_TRUE(::SendMessageA(huevox.window(), WM_QUERYENDSESSION, 0, 0));
    ::SendMessageA(huevox.window(), WM_ENDSESSION, FALSE, 0);
    EXPECT_TRUE(huevox.isRunning());
    EXPECT_TRUE(::IsWindowVisible(huevox.window()));
    EXPECT_TRUE(::SendMessageA(huevox.window(), WM_QUERYENDSESSION, 0, 0));
    ::SendMessageA(huevox.window(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}
