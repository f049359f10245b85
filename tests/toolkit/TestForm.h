// A form with a control of each kind.
#ifndef TESTS_TOOLKIT_TESTFORM_H
#define TESTS_TOOLKIT_TESTFORM_H

#define IDC_hsbTest 2001
#define IDC_txtTest 2002
#define IDC_cmdTest 2010
#define IDC_optTest 2011
#define IDC_chkTest 2020
#define IDC_lstTest 2021
#define IDC_lblTest 2022
#define IDC_picContainer 2023
#define IDC_picTest 2024
#define IDC_cellTest 2025
#define IDC_tmrTest 2026
#define IDC_tbrTest 2027
#define IDC_edgTest 2028
#define IDM_mnuTest 41001
#define IDM_firstChoice 41011
#define IDM_secondChoice 41012

#ifndef RC_INVOKED

#include "tests/driver/Wait.h"
#include "toolkit/controls/Buttons.h"
#include "toolkit/controls/CellStrip.h"
#include "toolkit/controls/ControlArray.h"
#include "toolkit/controls/Edge.h"
#include "toolkit/controls/Label.h"
#include "toolkit/controls/ListBox.h"
#include "toolkit/controls/PictureBox.h"
#include "toolkit/controls/ScrollBar.h"
#include "toolkit/controls/TextBox.h"
#include "toolkit/controls/ToolBar.h"
#include "toolkit/forms/Form.h"
#include "toolkit/forms/Timer.h"

struct TestForm : Form {
    TestForm() : Form("frmTest") { picContainer.hold(picTest); }

    ScrollBar hsbTest{*this, IDC_hsbTest, 0, 255};
    ControlArray<TextBox, 2> txtTest{*this, IDC_txtTest};
    Button cmdTest{*this, IDC_cmdTest};
    OptionGroup options;
    ControlArray<OptionButton, 3> optTest{*this, IDC_optTest, options};
    CheckBox chkTest{*this, IDC_chkTest};
    ListBox lstTest{*this, IDC_lstTest};
    Label lblTest{*this, IDC_lblTest};
    PictureBox picContainer{*this, IDC_picContainer};
    PictureBox picTest{*this, IDC_picTest};
    CellStrip cellTest{*this, IDC_cellTest};
    Edge edgTest{*this, IDC_edgTest, cellTest};
    Timer tmrTest{*this, IDC_tmrTest, 20};
};

/// A form whose template is in twips.
struct TwipsForm : Form {
    TwipsForm() : Form("frmTwips", 1) {}

    CellStrip cellTest{*this, IDC_cellTest};
    ToolBar tbrTest{*this, IDC_tbrTest};
};

/// Takes back the end of the message loop that the last form of an earlier test has asked for.
inline void ForgetQuit() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) continue;
}

/// Dispatches what is waiting now.
inline void PumpAll() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (Form::preTranslate(message)) continue;
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

/// Dispatches messages until condition is true. False when it does not become true.
template <class Condition>
[[nodiscard]] bool PumpUntil(Condition condition) {
    const Patience patience;
    while (!condition()) {
        if (patience.isOver()) return false;
        PumpAll();
        ::Sleep(1);
    }
    return true;
}

#endif
#endif
