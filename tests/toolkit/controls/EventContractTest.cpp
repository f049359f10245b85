// Does a write from code raise the event? One test a control, and the user's side of each.
#include <string>
#include <thread>
#include <vector>

#include "tests/driver/Input.h"
#include "tests/toolkit/FormFixture.h"
#include "toolkit/forms/MsgBox.h"

namespace {

class EventContract : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        show();
    }
    void TearDown() override { form.unload(); }

    void count(Event<>& event) {
        event.bind([this] { ++raised; });
    }

    int raised = 0;
};

void Drag(HWND form, HWND bar, int code, int position) {
    ::SendMessageA(form, WM_HSCROLL, MAKEWPARAM(code, position), reinterpret_cast<LPARAM>(bar));
}

/// How often a button is told whether it is on, while the value lives.
class ChecksTold {
public:
    explicit ChecksTold(HWND button) : button(button) {
        told = 0;
        original = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ChecksTold::proc)));
    }
    ChecksTold(const ChecksTold&) = delete;
    ChecksTold& operator=(const ChecksTold&) = delete;
    ~ChecksTold() { ::SetWindowLongPtrW(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original)); }

    int count() const { return told; }

private:
    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == BM_SETCHECK) ++told;
        return ::CallWindowProcW(original, window, message, wParam, lParam);
    }

    static inline int told = 0;
    static inline WNDPROC original = nullptr;
    HWND button;
};

LONG_PTR StyleOf(const OptionButton& option) { return ::GetWindowLongPtrW(option.handle(), GWL_STYLE); }

}  // namespace

TEST_F(EventContract, ScrollBarRaisesChangeOnlyWhenTheValueDiffers) {
    count(form.hsbTest.Change);
    form.hsbTest.setValue(0);
    EXPECT_EQ(raised, 0);
    form.hsbTest.setValue(100);
    EXPECT_EQ(raised, 1);
    form.hsbTest.setValue(100);
    EXPECT_EQ(raised, 1);
    EXPECT_EQ(form.hsbTest.value(), 100);
    EXPECT_EQ(::GetScrollPos(form.hsbTest.handle(), SB_CTL), 100);
}

TEST_F(EventContract, ScrollBarComparesTheLimitedValue) {
    form.hsbTest.setValue(255);
    count(form.hsbTest.Change);
    form.hsbTest.setValue(300);
    EXPECT_EQ(raised, 0);
    form.hsbTest.setValue(-1);
    EXPECT_EQ(raised, 1);
    EXPECT_EQ(form.hsbTest.value(), 0);
    form.hsbTest.setValue(-2);
    EXPECT_EQ(raised, 1);
}

TEST_F(EventContract, ScrollBarRaisesScrollOnTheWayOfADragAndChangeAtItsEnd) {
    std::vector<std::string> events;
    form.hsbTest.Scroll.bind([&] { events.push_back("Scroll " + std::to_string(form.hsbTest.value())); });
    form.hsbTest.Change.bind([&] { events.push_back("Change " + std::to_string(form.hsbTest.value())); });
    const HWND bar = form.hsbTest.handle();
    Drag(form.handle(), bar, SB_THUMBTRACK, 0);
    Drag(form.handle(), bar, SB_THUMBTRACK, 10);
    Drag(form.handle(), bar, SB_THUMBTRACK, 10);
    Drag(form.handle(), bar, SB_THUMBTRACK, 20);
    Drag(form.handle(), bar, SB_THUMBPOSITION, 20);
    Drag(form.handle(), bar, SB_ENDSCROLL, 0);
    EXPECT_EQ(events, (std::vector<std::string>{"Scroll 10", "Scroll 20", "Change 20"}));
    Drag(form.handle(), bar, SB_THUMBPOSITION, 20);
    EXPECT_EQ(events.size(), 3U);
    Drag(form.handle(), bar, SB_THUMBPOSITION, 999);
    EXPECT_EQ(events.back(), "Change 255");
}

TEST_F(EventContract, ScrollBarMovesByOneForArrowsAndTrough) {
    const HWND bar = form.hsbTest.handle();
    Drag(form.handle(), bar, SB_LINERIGHT, 0);
    Drag(form.handle(), bar, SB_PAGERIGHT, 0);
    EXPECT_EQ(form.hsbTest.value(), 2);
    Drag(form.handle(), bar, SB_PAGELEFT, 0);
    Drag(form.handle(), bar, SB_LINELEFT, 0);
    Drag(form.handle(), bar, SB_LINELEFT, 0);
    EXPECT_EQ(form.hsbTest.value(), 0);
}

TEST_F(EventContract, ListBoxRaisesClickOnlyWhenTheIndexDiffers) {
    for (const char* row : {"a", "b", "c"}) form.lstTest.addItem(row);
    count(form.lstTest.Click);
    form.lstTest.setIndex(-1);
    EXPECT_EQ(raised, 0);
    form.lstTest.setIndex(1);
    EXPECT_EQ(raised, 1);
    form.lstTest.setIndex(1);
    EXPECT_EQ(raised, 1);
    form.lstTest.setIndex(-1);
    EXPECT_EQ(raised, 2);
    EXPECT_EQ(form.lstTest.index(), -1);
    form.lstTest.setIndex(3);
    EXPECT_EQ(raised, 2);
}

TEST_F(EventContract, ListBoxRaisesClickOnceForTheUsersClickOnTheCurrentRowToo) {
    for (const char* row : {"a", "b", "c"}) form.lstTest.addItem(row);
    form.lstTest.setIndex(0);
    count(form.lstTest.Click);
    const POINT firstRow = OnScreen(form.lstTest.handle(), {20, 6});
    Click(firstRow);
    EXPECT_TRUE(PumpUntil([&] { return raised == 1; }));
    Click(OnScreen(form.lstTest.handle(), {20, 20}));
    EXPECT_TRUE(PumpUntil([&] { return raised == 2; }));
    EXPECT_EQ(form.lstTest.index(), 1);
    Press(VK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return raised == 3; }));
    EXPECT_EQ(form.lstTest.index(), 2);
}

TEST_F(EventContract, OptionButtonSetFromCodeRaisesNothingAndClearsTheRestOfItsGroup) {
    count(form.optTest(0).Click);
    count(form.optTest(1).Click);
    form.optTest(0).turnOn();
    form.optTest(1).turnOn();
    EXPECT_EQ(raised, 0);
    EXPECT_FALSE(form.optTest(0).value());
    EXPECT_TRUE(form.optTest(1).value());
    EXPECT_EQ(::SendMessageA(form.optTest(0).handle(), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(::SendMessageA(form.optTest(1).handle(), BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_F(EventContract, OptionButtonSetFromCodeTurnsTheOneThatWasOnOffOnce) {
    form.optTest(0).turnOn();
    const ChecksTold checks(form.optTest(0).handle());
    form.optTest(1).turnOn();
    EXPECT_EQ(checks.count(), 1);
    EXPECT_EQ(StyleOf(form.optTest(1)) & BS_TYPEMASK, BS_AUTORADIOBUTTON);
}

TEST_F(EventContract, OptionButtonSetFromCodeIsTheOnlyTabStopOfItsGroupEachTimeTheFormIsLoaded) {
    for (int load = 0; load < 2; ++load) {
        form.optTest(1).turnOn();
        EXPECT_FALSE(StyleOf(form.optTest(0)) & WS_TABSTOP);
        EXPECT_TRUE(StyleOf(form.optTest(1)) & WS_TABSTOP);
        EXPECT_FALSE(StyleOf(form.optTest(2)) & WS_TABSTOP);
        form.unload();
        show();
    }
}

TEST_F(EventContract, OptionButtonRaisesClickOnceWhenTheUserTurnsItOn) {
    form.optTest(0).turnOn();
    for (OptionButton& option : form.optTest) count(option.Click);
    Click(form.optTest(2).handle());
    EXPECT_TRUE(PumpUntil([&] { return raised == 1; }));
    EXPECT_TRUE(form.optTest(2).value());
    EXPECT_FALSE(form.optTest(0).value());
    Click(form.optTest(2).handle());
    Press(VK_LEFT);
    EXPECT_TRUE(PumpUntil([&] { return form.optTest(1).value(); }));
    EXPECT_EQ(raised, 2);
    Click(form.optTest(2).handle());
    EXPECT_TRUE(PumpUntil([&] { return form.optTest(2).value(); }));
    EXPECT_EQ(raised, 3);
}

TEST_F(EventContract, CheckBoxSetFromCodeRaisesNothing) {
    count(form.chkTest.Click);
    form.chkTest.setValue(true);
    EXPECT_EQ(raised, 0);
    EXPECT_TRUE(form.chkTest.value());
    Click(form.chkTest.handle());
    EXPECT_TRUE(PumpUntil([&] { return raised == 1; }));
    EXPECT_FALSE(form.chkTest.value());
}

TEST_F(EventContract, TextBoxRaisesChangeOnlyWhenTheTextDiffers) {
    count(form.txtTest(0).Change);
    form.txtTest(0).setText("");
    EXPECT_EQ(raised, 0);
    form.txtTest(0).setText("navy");
    EXPECT_EQ(raised, 1);
    form.txtTest(0).setText("navy");
    EXPECT_EQ(raised, 1);
    form.txtTest(0).setText("Navy");
    EXPECT_EQ(raised, 2);
    EXPECT_EQ(form.txtTest(0).text(), "Navy");
}

TEST_F(EventContract, TextBoxRaisesChangeForEveryTypedCharacter) {
    Click(form.txtTest(0).handle());
    ASSERT_TRUE(PumpUntil([&] { return ::GetFocus() == form.txtTest(0).handle(); }));
    count(form.txtTest(0).Change);
    Type("abc");
    EXPECT_TRUE(PumpUntil([&] { return form.txtTest(0).text() == "abc"; }));
    EXPECT_EQ(raised, 3);
}

TEST_F(EventContract, TextBoxWrittenByAnotherProgramRaisesChangeAndKnowsItsText) {
    form.txtTest(0).setText("ours");
    count(form.txtTest(0).Change);
    ::SendMessageA(form.txtTest(0).handle(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("theirs"));
    EXPECT_EQ(raised, 1);
    EXPECT_EQ(form.txtTest(0).text(), "theirs");
}

TEST_F(EventContract, FormIsDeactivatedAndActivatedAroundAMessageBox) {
    std::vector<std::string> events;
    form.Deactivate.bind([&] { events.emplace_back("Deactivate"); });
    form.Activate.bind([&] { events.emplace_back("Activate"); });
    std::thread user([] {
        HWND box = nullptr;
        while (!(box = ::FindWindowA("#32770", "Box"))) ::Sleep(5);
        ::PostMessageA(box, WM_COMMAND, IDOK, 0);
    });
    MsgBox(&form, "text", MB_OK, "Box");
    user.join();
    // Windows' own activation is over before the form's begins.
    EXPECT_EQ(events, (std::vector<std::string>{"Deactivate"}));
    EXPECT_TRUE(PumpUntil([&] { return events.size() == 2; }));
    EXPECT_EQ(events.back(), "Activate");
}
