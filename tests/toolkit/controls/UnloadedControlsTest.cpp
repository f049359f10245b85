// Does a call on a control whose window is gone touch anything?
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string_view>
#include <vector>

#include "resources/resource.h"
#include "tests/toolkit/FormFixture.h"
#include "toolkit/controls/IconBox.h"
#include "toolkit/controls/LinkLabel.h"

namespace {

constexpr int numberOfNone = 9999;  // no template has it
constexpr Selection selected = {0, 1};
constexpr std::array<ToolButton, 1> buttons = {{{IDM_firstChoice, IDI_Save, "first"}}};
const std::array<PackedColor, 1> colors = {0x123456};

/// Forms that were loaded once and are not any more, and controls that never had a window.
struct Gone {
    TestForm form;
    TwipsForm bar;
    LinkLabel link{form, numberOfNone};
    IconBox picture{form, numberOfNone, IDI_Save};
};

struct Call {
    std::string_view name;
    std::function<void(Gone&)> make;
};

void CallWhatAllShare(Control& control) {
    EXPECT_FALSE(control.isEnabled());
    EXPECT_FALSE(control.isUsable());
    EXPECT_FALSE(control.hasFocus());
    for (const bool is : {false, true}) {
        control.setEnabled(is);
        control.setVisible(is);
    }
    control.setFocus();
    control.setToolTip("tip");
}

const std::vector<Call> calls = {
    {"shared by all",
     [](Gone& gone) {
         const std::array<Control*, 12> all = {
             &gone.form.hsbTest,  &gone.form.txtTest(0), &gone.form.cmdTest, &gone.form.optTest(0),
             &gone.form.chkTest,  &gone.form.lstTest,    &gone.form.lblTest, &gone.form.picContainer,
             &gone.form.cellTest, &gone.bar.tbrTest,     &gone.link,         &gone.picture};
         for (Control* control : all) CallWhatAllShare(*control);
     }},
    {"ScrollBar::setValue", [](Gone& gone) { gone.form.hsbTest.setValue(7); }},
    {"TextBox::text", [](Gone& gone) { gone.form.txtTest(0).text(); }},
    {"TextBox::setText", [](Gone& gone) { gone.form.txtTest(0).setText("new"); }},
    {"TextBox::setMaxLength", [](Gone& gone) { gone.form.txtTest(0).setMaxLength(3); }},
    {"TextBox::selectAll", [](Gone& gone) { gone.form.txtTest(0).selectAll(); }},
    {"TextBox::selection", [](Gone& gone) { gone.form.txtTest(0).selection(); }},
    {"TextBox::setSelection", [](Gone& gone) { gone.form.txtTest(0).setSelection(selected); }},
    {"TextBox::setCaretToEnd", [](Gone& gone) { gone.form.txtTest(0).setCaretToEnd(); }},
    {"TextBox::setBackColor", [](Gone& gone) { gone.form.txtTest(0).setBackColor(RGB(1, 2, 3)); }},
    {"OptionButton::turnOn", [](Gone& gone) { gone.form.optTest(1).turnOn(); }},
    {"CheckBox::value", [](Gone& gone) { EXPECT_FALSE(gone.form.chkTest.value()); }},
    {"CheckBox::setValue", [](Gone& gone) { gone.form.chkTest.setValue(true); }},
    {"ListBox::addItem", [](Gone& gone) { gone.form.lstTest.addItem("item"); }},
    {"ListBox::setIndex", [](Gone& gone) { gone.form.lstTest.setIndex(0); }},
    {"Label::setText", [](Gone& gone) { gone.form.lblTest.setText("new"); }},
    {"Label::setFont", [](Gone& gone) { gone.form.lblTest.setFont("Segoe UI", 12); }},
    {"PictureBox::setBackColor", [](Gone& gone) { gone.form.picTest.setBackColor(RGB(1, 2, 3)); }},
    {"PictureBox::setFocusFrame", [](Gone& gone) { gone.form.picTest.setFocusFrame(true); }},
    {"PictureBox::setText", [](Gone& gone) { gone.form.picTest.setText("new"); }},
    {"PictureBox::paintNow", [](Gone& gone) { gone.form.picTest.paintNow(); }},
    {"PictureBox::captureMouse", [](Gone& gone) { gone.form.picTest.captureMouse(); }},
    {"CellStrip::setColors", [](Gone& gone) { gone.form.cellTest.setColors(colors); }},
    {"CellStrip::setTips", [](Gone& gone) { gone.form.cellTest.setTips({"tip"}); }},
    {"CellStrip::setFirstCell", [](Gone& gone) { gone.form.cellTest.setFirstCell(1); }},
    {"CellStrip::Held", [](Gone& gone) { const CellStrip::Held held(gone.form.cellTest); }},
    {"ToolBar::fill", [](Gone& gone) { gone.bar.tbrTest.fill(buttons); }},
    {"ToolBar::setButtonEnabled",
     [](Gone& gone) { gone.bar.tbrTest.setButtonEnabled(IDM_firstChoice, false); }},
    {"ToolBar::isPressed", [](Gone& gone) { EXPECT_FALSE(gone.bar.tbrTest.isPressed(IDM_firstChoice)); }},
    {"ToolBar::setButtonTip", [](Gone& gone) { gone.bar.tbrTest.setButtonTip(IDM_firstChoice, "tip"); }},
    {"LinkLabel::text", [](Gone& gone) { EXPECT_EQ(gone.link.text(), ""); }},
    {"LinkLabel::setText", [](Gone& gone) { gone.link.setText("new"); }},
};

/// Another window of the program, in front and painted, which notices what is done to all windows.
class UnloadedControls : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        for (Form* loaded : {static_cast<Form*>(&gone.form), static_cast<Form*>(&gone.bar)}) {
            loaded->load();
            loaded->show(SW_SHOWNORMAL);
        }
        show();
        gone.form.unload();
        gone.bar.unload();
        bindEvents();
        WaitForFront(form);
        form.picTest.captureMouse();
    }
    void TearDown() override {
        ::ReleaseCapture();
        form.unload();
    }

    void bindEvents() {
        const auto count = [this](auto&...) { ++raised; };
        gone.form.hsbTest.Change.bind(count);
        gone.form.txtTest(0).Change.bind(count);
        gone.form.lstTest.Click.bind(count);
        gone.form.chkTest.Click.bind(count);
        gone.form.optTest(1).Click.bind(count);
    }

    bool isUntouched() const {
        return !::GetUpdateRect(form.handle(), nullptr, FALSE) &&
               !::GetUpdateRect(form.picTest.handle(), nullptr, FALSE) &&
               ::GetCapture() == form.picTest.handle();
    }

    Gone gone;
    int raised = 0;
};

}  // namespace

TEST_F(UnloadedControls, TouchNothing) {
    ASSERT_TRUE(isUntouched());
    const HWND focus = ::GetFocus();
    for (const Call& call : calls) {
        call.make(gone);
        EXPECT_TRUE(isUntouched()) << call.name;
        EXPECT_EQ(::GetFocus(), focus) << call.name;
        EXPECT_EQ(std::exchange(raised, 0), 0) << call.name;
    }
}
