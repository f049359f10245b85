// How does a test use the editor of the custom notation?
#pragma once

#include <string>
#include <utility>

#include "tests/driver/UiTest.h"

class FormatDialog {
public:
    /// Opens it by its key and waits until it is in front and its box has the focus.
    explicit FormatDialog(const Huevox& huevox) : huevox(huevox) {
        Press(VK_F8);
        waitUntilReady();
    }
    /// Takes the dialog that is being opened.
    struct IsOpening {};
    FormatDialog(const Huevox& huevox, IsOpening) : huevox(huevox) { waitUntilReady(); }

    HWND window() const { return huevox.form("frmCustomFormat"); }
    HWND control(int id) const { return ::GetDlgItem(window(), id); }
    std::string text() const { return TextOf(control(IDC_txtFormat)); }
    std::pair<int, int> selection() const {
        const LRESULT both = ::SendMessageA(control(IDC_txtFormat), EM_GETSEL, 0, 0);
        return {LOWORD(both), HIWORD(both)};
    }
    int focused() const { return huevox.focused(); }
    /// Expects nothing to be selected, and the caret after so many characters.
    void expectCaret(int after) const { EXPECT_BECOMES(selection(), (std::pair{after, after})); }

    /// Clicks a placeholder's button and waits for what the template becomes.
    void insert(int button, std::string_view expected) const {
        Click(control(button));
        EXPECT_BECOMES(text(), expected);
    }
    /// Selects by keys, from start on; nothing for a length of 0.
    void select(int start, int length) const {
        Press(VK_HOME);
        for (int step = 0; step < start; ++step) Press(VK_RIGHT);
        for (int step = 0; step < length; ++step) Press(VK_RIGHT, {VK_SHIFT});
        EXPECT_BECOMES(selection(), (std::pair{start, start + length}));
    }
    /// Types in place of everything.
    void retype(std::string_view typed) const {
        Press(VK_HOME);
        Press(VK_END, {VK_SHIFT});
        Press(VK_DELETE);
        EXPECT_BECOMES(text(), "");
        Type(typed);
        EXPECT_BECOMES(text(), typed);
    }
    /// Waits until it is gone and the main window is in front.
    void waitForEnd() const {
        EXPECT_BECOMES(window(), nullptr);
        EXPECT_BECOMES(::GetForegroundWindow(), huevox.window());
    }
    void click(int button) const {
        Click(control(button));
        waitForEnd();
    }

private:
    void waitUntilReady() const {
        EXPECT_TRUE(Eventually([&] { return window() && ::GetForegroundWindow() == window(); }));
        EXPECT_BECOMES(focused(), IDC_txtFormat);
    }

    const Huevox& huevox;
};
