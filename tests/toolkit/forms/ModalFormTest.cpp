// A form that the others wait for.
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "resources/resource.h"
#include "tests/driver/Input.h"
#include "tests/toolkit/FormFixture.h"
#include "toolkit/platform/WindowPlace.h"

namespace {

struct ModalForm : Form {
    ModalForm() : Form("frmModal") {}

    TextBox txtTest{*this, IDC_txtTest};
    Button cmdOK{*this, IDC_cmdOK};
    Button cmdCancel{*this, IDC_cmdCancel};
};

class ModalFormTest : public FormsTest {
protected:
    void SetUp() override {
        FormsTest::SetUp();
        main.load();
        main.show(SW_SHOWNORMAL);
        other.load();
        WaitForFront(main);
        dialog.cmdOK.Click.bind([&] { closeBy("OK"); });
        dialog.cmdCancel.Click.bind([&] { closeBy("Cancel"); });
    }
    void TearDown() override { Form::unloadAll(); }

    void closeBy(const char* way) {
        ways.emplace_back(way);
        dialog.unload();
    }
    /// Runs body when the dialog is on the screen and in front.
    void whenShown(std::function<void()> body) {
        dialog.Activate.bind([this, body = std::move(body)] {
            if (!PumpUntil([&] { return ::GetForegroundWindow() == dialog.handle(); })) ADD_FAILURE();
            body();
        });
    }
    static bool isEnabled(const Form& form) { return ::IsWindowEnabled(form.handle()) != FALSE; }

    TestForm main;
    TwipsForm other;
    ModalForm dialog;
    std::vector<std::string> ways;
};

}  // namespace

TEST_F(ModalFormTest, NoOtherFormTakesInputUntilItGoes) {
    bool isSeen = false;
    whenShown([&] {
        isSeen = true;
        EXPECT_TRUE(isEnabled(dialog));
        EXPECT_FALSE(isEnabled(main));
        EXPECT_FALSE(isEnabled(other));
        dialog.unload();
    });
    dialog.showModal(main);
    EXPECT_TRUE(isSeen);
    EXPECT_FALSE(dialog.handle());
    EXPECT_TRUE(isEnabled(main));
    EXPECT_TRUE(isEnabled(other));
}

TEST_F(ModalFormTest, TheOthersTakeInputAgainBeforeItsWindowGoes) {
    bool isAlive = false;
    HWND window = nullptr;
    whenShown([&] {
        window = dialog.handle();
        dialog.unload();
    });
    main.Activate.bind([&] { isAlive = ::IsWindowEnabled(main.handle()) != FALSE; });
    dialog.showModal(main);
    EXPECT_TRUE(PumpUntil([&] { return ::GetForegroundWindow() == main.handle() && isAlive; }));
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(ModalFormTest, EnterPressesTheDefaultButtonAndEscapeTheOtherOne) {
    whenShown([] { Press(VK_RETURN); });
    dialog.showModal(main);
    whenShown([] { Press(VK_ESCAPE); });
    dialog.showModal(main);
    EXPECT_EQ(ways, (std::vector<std::string>{"OK", "Cancel"}));
}

TEST_F(ModalFormTest, TheFirstControlHasTheFocusAndTheCloseBoxCloses) {
    HWND focused = nullptr;
    whenShown([&] {
        focused = ::GetFocus();
        EXPECT_EQ(focused, dialog.txtTest.handle());
        ::PostMessageA(dialog.handle(), WM_CLOSE, 0, 0);
    });
    dialog.showModal(main);
    EXPECT_TRUE(focused);
    EXPECT_TRUE(ways.empty());
}

TEST_F(ModalFormTest, StandsInTheMiddleOfItsOwner) {
    Area owner;
    Area own;
    whenShown([&] {
        owner = PlaceOf(main.handle());
        own = PlaceOf(dialog.handle());
        dialog.unload();
    });
    dialog.showModal(main);
    EXPECT_NEAR(own.left + own.right, owner.left + owner.right, 2);
    EXPECT_NEAR(own.top + own.bottom, owner.top + owner.bottom, 2);
}

TEST_F(ModalFormTest, StaysOnTheMonitorOfAnOwnerAtItsEdge) {
    const Area work = WorkAreaAt(main.handle());
    ::SetWindowPos(main.handle(), nullptr, work.right - 40, work.bottom - 40, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER);
    Area own;
    whenShown([&] {
        own = PlaceOf(dialog.handle());
        dialog.unload();
    });
    dialog.showModal(main);
    EXPECT_LE(own.right, work.right);
    EXPECT_LE(own.bottom, work.bottom);
    EXPECT_GT(own.width(), 0);
}

TEST_F(ModalFormTest, TheEndOfTheProgramEndsItToo) {
    whenShown([&] { Form::unloadAll(); });
    dialog.showModal(main);
    EXPECT_FALSE(dialog.handle());
    EXPECT_FALSE(main.handle());
    EXPECT_EQ(RunMessageLoop(), 0);
}

TEST_F(ModalFormTest, AMessageThatComesBeforeItIsShownStandsOverItsOwner) {
    HWND owner = nullptr;
    dialog.Load.bind([&] { owner = dialog.messageOwner(); });
    whenShown([&] {
        EXPECT_EQ(dialog.messageOwner(), dialog.handle());
        dialog.unload();
    });
    dialog.showModal(main);
    EXPECT_EQ(owner, main.handle());
}
