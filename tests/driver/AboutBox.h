// How does a test use the about box?
#pragma once

#include <string>

#include "tests/driver/UiTest.h"

class AboutBox {
public:
    /// Opens it by the menu and waits until it is in front and its button has the focus.
    explicit AboutBox(const Huevox& huevox) : huevox(huevox) {
        Press('H', {VK_MENU});
        Press('A');
        EXPECT_TRUE(Eventually([&] { return window() && ::GetForegroundWindow() == window(); }));
        EXPECT_BECOMES(focused(), IDC_cmdOK);
    }

    HWND window() const { return huevox.form("frmAbout"); }
    HWND control(int id) const { return ::GetDlgItem(window(), id); }
    std::string text(int id) const { return TextOf(control(id)); }
    int focused() const { return huevox.focused(); }
    /// The middle of a place near the beginning of a link.
    POINT startOf(int link) const { return OnScreen(control(link), {20, 10}); }
    void tabTo(int id) const {
        Press(VK_TAB);
        EXPECT_BECOMES(focused(), id);
    }
    /// Expects it to be gone, and the main window to be in front and to take input.
    void expectClosed() const {
        EXPECT_BECOMES(window(), nullptr);
        EXPECT_BECOMES(::GetForegroundWindow(), huevox.window());
        EXPECT_TRUE(::IsWindowEnabled(huevox.window()));
    }

private:
    const Huevox& huevox;
};
