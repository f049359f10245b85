// How does a test use the main window from inside?
#pragma once

#include "mainwindow/frmMain.h"
#include "resources/resource.h"
#include "support/AppState.h"
#include "support/FatalError.h"
#include "tests/toolkit/FormFixture.h"
#include "toolkit/platform/Trap.h"

/// The main window, loaded but not shown.
class LoadedMainWindow : public FormsTest {
protected:
    void SetUp() override {
        FormsTest::SetUp();
        errorTrap = HandleFatalError;
        window.load();
    }
    /// Asks nobody whether to save what the test has changed.
    void TearDown() override {
        state.settings.promptToSave = 0;
        window.unload();
    }

    void show() {
        window.show(SW_SHOWNORMAL);
        window.activate();
        WaitForFront(window);
    }

    HWND control(int id) const { return ::GetDlgItem(window.handle(), id); }
    HWND sample(int mark) const {
        return ::GetDlgItem(control(IDC_picSampleContainer), IDC_picSample + mark);
    }
    void command(int id) const { ::SendMessageA(window.handle(), WM_COMMAND, id, 0); }
    void click(int button) const { ::SendMessageA(control(button), BM_CLICK, 0, 0); }
    /// Gives a slider a value as a user does.
    void scroll(int slider, int value) const {
        ::SendMessageA(window.handle(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, value),
                       reinterpret_cast<LPARAM>(control(slider)));
    }

    AppState state;
    frmMain window{state};
};

/// The main window on the screen and in front.
class ShownMainWindow : public LoadedMainWindow {
protected:
    void SetUp() override {
        LoadedMainWindow::SetUp();
        show();
    }
};
