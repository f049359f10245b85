// A form from its load to its unload, and what it passes on to its controls.
#include "toolkit/forms/Form.h"

#include <stdexcept>

#include "tests/driver/Input.h"
#include "tests/driver/WindowText.h"
#include "tests/toolkit/FormFixture.h"
#include "toolkit/forms/MessageLoop.h"

TEST_F(FormTest, LoadComesFirstAndTicksAndActivationsWaitForItsEnd) {
    form.tmrTest.Tick.bind([&] { events.emplace_back("Tick"); });
    form.Activate.bind([&] { events.emplace_back("Activate"); });
    form.Load.bind([&] {
        EXPECT_FALSE(form.isLoaded());
        ::ShowWindow(form.handle(), SW_SHOW);
        const ULONGLONG end = ::GetTickCount64() + 100;
        MSG message;
        while (::GetTickCount64() < end) {
            if (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
        }
        events.emplace_back("Load");
    });
    form.load();
    ASSERT_EQ(events, (std::vector<std::string>{"Load"}));
    EXPECT_TRUE(form.isLoaded());
    EXPECT_TRUE(PumpUntil([&] { return events.back() == "Tick"; }));
    form.unload();
}

TEST_F(FormTest, AnErrorInLoadIsTheLoadersAndTheWindowCanBeUnloaded) {
    form.Load.bind([] { throw std::runtime_error("load"); });
    EXPECT_THROW(form.load(), std::runtime_error);
    EXPECT_FALSE(form.isLoaded());
    EXPECT_TRUE(form.handle());
    form.unload();
    EXPECT_FALSE(form.handle());
}

TEST_F(FormTest, ATemplateThatIsNotThereIsAnError) {
    Form missing("frmMissing");
    EXPECT_THROW(missing.load(), std::runtime_error);
}

TEST_F(FormTest, CanBeLoadedAgain) {
    form.load();
    form.unload();
    form.load();
    EXPECT_TRUE(form.isLoaded());
    form.txtTest(1).setText("again");
    EXPECT_EQ(form.txtTest(1).text(), "again");
    form.unload();
}

TEST_F(FormTest, EdgesStandWhereTheTemplateSays) {
    form.load();
    RECT client{};
    ::GetClientRect(form.handle(), &client);
    EXPECT_EQ(client.right, form.scaled(400));
    EXPECT_EQ(client.bottom, form.scaled(300));
    RECT place{};
    ::GetWindowRect(form.txtTest(1).handle(), &place);
    ::MapWindowPoints(nullptr, form.handle(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, form.scaled(140));
    EXPECT_EQ(place.right, form.scaled(260));
    form.unload();
}

TEST_F(FormTest, ATemplateMayBeInTwips) {
    TwipsForm twips;
    twips.load();
    RECT client{};
    ::GetClientRect(twips.handle(), &client);
    const Area all = twips.scaled(Area{0, 0, 1750, 5420});
    EXPECT_EQ(client.right, all.right);
    EXPECT_EQ(client.bottom, all.bottom);
    RECT strip{};
    ::GetWindowRect(twips.cellTest.handle(), &strip);
    ::MapWindowPoints(nullptr, twips.handle(), reinterpret_cast<POINT*>(&strip), 2);
    EXPECT_EQ(strip.top, twips.scaled(28));
    EXPECT_EQ(strip.bottom, all.bottom);
    twips.unload();
}

TEST_F(FormTest, AHeldControlIsAChildOfItsContainerAtItsPlaceOnTheForm) {
    form.load();
    EXPECT_EQ(::GetParent(form.picTest.handle()), form.picContainer.handle());
    RECT place{};
    ::GetWindowRect(form.picTest.handle(), &place);
    ::MapWindowPoints(nullptr, form.handle(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, form.scaled(210));
    EXPECT_EQ(place.top, form.scaled(200));
    form.unload();
}

TEST_F(FormTest, CommandsComeFromMenuAndShortcutUnlessTheFormIsDisabled) {
    int commands = 0;
    form.Command.bind([&](int command) { commands += command == IDM_mnuTest; });
    show();
    ::SendMessageA(form.handle(), WM_COMMAND, IDM_mnuTest, 0);
    EXPECT_EQ(commands, 1);
    Press(VK_F7);
    EXPECT_TRUE(PumpUntil([&] { return commands == 2; }));
    ::EnableWindow(form.handle(), FALSE);
    ::SendMessageA(form.handle(), WM_COMMAND, IDM_mnuTest, 0);
    EXPECT_EQ(commands, 2);
    ::EnableWindow(form.handle(), TRUE);
    form.unload();
}

TEST_F(FormTest, CallsOnControlsOfAnUnloadedFormDoNothing) {
    int raised = 0;
    form.hsbTest.Change.bind([&] { ++raised; });
    form.txtTest(0).Change.bind([&] { ++raised; });
    form.lstTest.Click.bind([&] { ++raised; });
    form.load();
    form.unload();
    form.hsbTest.setValue(7);
    form.txtTest(0).setText("x");
    form.txtTest(0).selectAll();
    form.lstTest.setIndex(0);
    form.optTest(0).turnOn();
    form.chkTest.setValue(true);
    form.lblTest.setText("x");
    form.picTest.setBackColor(1);
    form.cmdTest.setEnabled(false);
    form.cmdTest.setFocus();
    form.cmdTest.setToolTip("x");
    EXPECT_EQ(raised, 0);
    EXPECT_EQ(form.txtTest(0).text(), "");
}

TEST_F(FormTest, TheFocusMovesOnFromAControlThatIsDisabled) {
    show();
    form.cmdTest.setFocus();
    form.cmdTest.setEnabled(false);
    form.optTest(1).turnOn();
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == form.optTest(1).handle(); }));
    form.unload();
}

TEST_F(FormTest, TheFirstControlGetsTheFocusWhenTheFormIsShown) {
    show();
    ::SetFocus(nullptr);
    form.show(SW_SHOW);
    EXPECT_EQ(::GetFocus(), form.hsbTest.handle());
    form.unload();
}

TEST_F(FormTest, TheFirstControlGetsTheFocusWhenTheFormIsActivatedAndNoOtherHasIt) {
    TestForm second;
    show();
    second.load();
    second.show(SW_SHOWNORMAL);
    WaitForFront(second);
    ::SetActiveWindow(form.handle());
    ::SetFocus(nullptr);
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == form.hsbTest.handle(); }));
    second.unload();
    form.unload();
}

TEST_F(FormTest, TheControlThatHasTheFocusKeepsItWhenTheFormIsShownAgain) {
    show();
    form.cmdTest.setFocus();
    form.show(SW_SHOW);
    EXPECT_EQ(::GetFocus(), form.cmdTest.handle());
    form.unload();
}

TEST_F(FormTest, TheFocusStaysWhenTheControlIsEnabledAgainBeforeTheHandlerEnds) {
    show();
    form.cmdTest.setFocus();
    form.cmdTest.setEnabled(false);
    form.cmdTest.setEnabled(true);
    PumpAll();
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == form.cmdTest.handle(); }));
    form.unload();
}

TEST_F(FormTest, AClickOnADisabledButtonFromAnotherProgramIsNone) {
    int clicks = 0;
    form.cmdTest.Click.bind([&] { ++clicks; });
    form.load();
    form.cmdTest.setEnabled(false);
    const auto sender = reinterpret_cast<LPARAM>(form.cmdTest.handle());
    ::SendMessageA(form.handle(), WM_COMMAND, MAKEWPARAM(IDC_cmdTest, BN_CLICKED), sender);
    EXPECT_EQ(clicks, 0);
    form.cmdTest.setEnabled(true);
    ::SendMessageA(form.handle(), WM_COMMAND, MAKEWPARAM(IDC_cmdTest, BN_CLICKED), sender);
    EXPECT_EQ(clicks, 1);
    form.unload();
}

TEST_F(FormTest, ALabelThatShowsDataShowsAmpersandsAsTheyAre) {
    form.load();
    form.lblTest.setText("&H00&");
    EXPECT_EQ(TextOf(form.lblTest.handle()), "&H00&");
    EXPECT_TRUE(::GetWindowLongA(form.lblTest.handle(), GWL_STYLE) & SS_NOPREFIX);
    form.unload();
}

TEST_F(FormTest, TheFocusIsNotTakenWhileAnotherProgramIsInFront) {
    show();
    form.cmdTest.setFocus();
    ASSERT_EQ(::GetFocus(), form.cmdTest.handle());
    form.cmdTest.setEnabled(false);
    ::SendMessageA(form.handle(), WM_ACTIVATE, WA_INACTIVE, 0);
    PumpAll();
    EXPECT_FALSE(::IsChild(form.handle(), ::GetFocus()));
    form.unload();
}

TEST_F(FormTest, AnActivationThatIsOverByThenIsNotToldOf) {
    form.load();
    int activations = 0;
    form.Activate.bind([&] { ++activations; });
    ::SendMessageA(form.handle(), WM_ACTIVATE, WA_ACTIVE, 0);
    ::SendMessageA(form.handle(), WM_ACTIVATE, WA_INACTIVE, 0);
    PumpAll();
    EXPECT_EQ(activations, 0);
    ::SendMessageA(form.handle(), WM_ACTIVATE, WA_ACTIVE, 0);
    form.activate();
    PumpAll();
    EXPECT_EQ(activations, 1);
    form.unload();
}
