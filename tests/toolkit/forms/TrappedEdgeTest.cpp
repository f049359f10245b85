// Where does an error end that comes up while Windows calls a form or a control?
#include <stdexcept>

#include "tests/toolkit/FormFixture.h"
#include "toolkit/platform/Trap.h"

namespace {

constexpr UINT failMessage = WM_APP + 100;

/// Fails when the scaling changes, and when it is told to.
class FailingBox : public Control {
public:
    using Control::Control;

private:
    void attached() override { subclass(); }
    void rescaled() override { throw std::runtime_error("no font of that size"); }
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == failMessage) throw std::runtime_error("told to fail");
        return Control::onMessage(message, wParam, lParam);
    }
};

struct FailingForm : Form {
    FailingForm() : Form("frmTest") {}

    FailingBox txtTest{*this, IDC_txtTest};
};

class TrappedEdge : public FormsTest {
protected:
    void SetUp() override {
        FormsTest::SetUp();
        errors = 0;
        errorTrap = [] { ++errors; };
        form.load();
    }
    void TearDown() override {
        errorTrap = nullptr;
        form.unload();
    }

    inline static int errors = 0;
    FailingForm form;
};

}  // namespace

TEST_F(TrappedEdge, OfAFormIsItsOwnWindow) {
    const RECT suggested = {0, 0, 600, 450};
    EXPECT_NO_THROW(::SendMessageA(form.handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
                                   reinterpret_cast<LPARAM>(&suggested)));
    EXPECT_EQ(errors, 1);
}

TEST_F(TrappedEdge, OfAControlIsItsOwnWindow) {
    EXPECT_NO_THROW(EXPECT_EQ(::SendMessageA(form.txtTest.handle(), failMessage, 0, 0), 0));
    EXPECT_EQ(errors, 1);
}
