// What do the about box and the pointer over it look like?
#include <cstdlib>

#include "help/frmAbout.h"
#include "resources/resource.h"
#include "tests/driver/Input.h"
#include "tests/program/InsideWindow.h"
#include "tests/toolkit/FormFixture.h"

namespace {

class AboutForm : public FormsTest {
protected:
    void SetUp() override {
        FormsTest::SetUp();
        about.load();
        about.show(SW_SHOWNORMAL);
        WaitForFront(about);
    }
    void TearDown() override { about.unload(); }

    HWND control(int id) const { return ::GetDlgItem(about.handle(), id); }
    POINT startOf(int link) const { return OnScreen(control(link), {about.scaled(20), about.scaled(10)}); }
    POINT endOf(int link) const {
        RECT area{};
        ::GetClientRect(control(link), &area);
        return OnScreen(control(link), {area.right - 2, area.bottom / 2});
    }
    /// Whether a line of that colour, as long as a word, is to be seen on the control.
    bool hasLineOf(int id, COLORREF color) const {
        RECT area{};
        ::GetClientRect(control(id), &area);
        for (int row = 0; row < area.bottom; ++row) {
            int length = 0;
            while (length < wordLength && pixel(id, {about.scaled(10) + length, row}) == color) ++length;
            if (length == wordLength) return true;
        }
        return false;
    }
    int fontHeight(int id) const { return static_cast<int>(std::abs(font(id).lfHeight)); }
    LOGFONTA font(int id) const {
        LOGFONTA record{};
        ::GetObjectA(reinterpret_cast<HFONT>(::SendMessageA(control(id), WM_GETFONT, 0, 0)), sizeof record,
                     &record);
        return record;
    }
    COLORREF pixel(int id, POINT point) const { return PixelIn(control(id), point); }

    static constexpr int wordLength = 40;
    frmAbout about;
};

/// A colour of the system is another for as long as the value lives.
class SystemColor {
public:
    SystemColor(int index, COLORREF color) : index(index), before(::GetSysColor(index)) { set(color); }
    SystemColor(const SystemColor&) = delete;
    SystemColor& operator=(const SystemColor&) = delete;
    ~SystemColor() { set(before); }

private:
    void set(COLORREF color) const { ::SetSysColors(1, &index, &color); }

    int index;
    COLORREF before;
};

bool PointerBecomes(LPCWSTR shape) {
    return PumpUntil([&] { return ::GetCursor() == ::LoadCursorW(nullptr, shape); });
}

}  // namespace

TEST_F(AboutForm, ThePointerIsAHandOverTheLinksAndOnlyThere) {
    for (const int link : {IDC_lblLink, IDC_lblMailLink}) {
        MoveMouse(startOf(link));
        EXPECT_TRUE(PointerBecomes(IDC_HAND));
        MoveMouse(endOf(link));
        EXPECT_TRUE(PointerBecomes(IDC_ARROW));
    }
}

TEST_F(AboutForm, LinksAreUnderlinedInTheSystemsColourOfLinks) {
    const SystemColor links(COLOR_HOTLIGHT, RGB(10, 60, 160));
    for (const int link : {IDC_lblLink, IDC_lblMailLink})
        EXPECT_TRUE(PumpUntil([&] { return hasLineOf(link, RGB(10, 60, 160)); }));
    EXPECT_FALSE(hasLineOf(IDC_lblMoreInfo, ::GetSysColor(COLOR_BTNTEXT)));
}

TEST_F(AboutForm, LinksAreOfTheTextsColourWhereTheirsCannotBeRead) {
    const SystemColor links(COLOR_HOTLIGHT, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_TRUE(PumpUntil([&] { return hasLineOf(IDC_lblLink, ::GetSysColor(COLOR_BTNTEXT)); }));
}

TEST_F(AboutForm, ALinkWithTheFocusIsSeen) {
    const auto dots = [&] {
        int count = 0;
        for (int x = 0; x < wordLength; ++x)
            count += pixel(IDC_lblLink, {x, 0}) != ::GetSysColor(COLOR_BTNFACE);
        return count;
    };
    ASSERT_TRUE(PumpUntil([&] { return dots() == 0; }));
    ::SetFocus(control(IDC_lblLink));
    EXPECT_TRUE(PumpUntil([&] { return dots() >= wordLength / 3; })) << dots();
    ::SetFocus(control(IDC_cmdOK));
    EXPECT_TRUE(PumpUntil([&] { return dots() == 0; }));
}

TEST_F(AboutForm, AChangedTextIsShownAtOnce) {
    ::SetWindowTextA(control(IDC_lblLink), "x");
    EXPECT_TRUE(PumpUntil([&] { return !hasLineOf(IDC_lblLink, ::GetSysColor(COLOR_HOTLIGHT)); }));
}

TEST_F(AboutForm, TheTitleIsInArialAndLargerThanTheRest) {
    EXPECT_STREQ(font(IDC_lblTitle).lfFaceName, "Arial");
    EXPECT_GT(2 * fontHeight(IDC_lblTitle), 3 * fontHeight(IDC_lblSlogan));
}

TEST_F(AboutForm, ItsFontsFollowAChangeOfScaling) {
    const int title = fontHeight(IDC_lblTitle);
    const int link = fontHeight(IDC_lblLink);
    const UINT twice = 2 * ::GetDpiForWindow(about.handle());
    RECT suggested = {0, 0, 900, 700};
    ::SendMessageA(about.handle(), WM_DPICHANGED, MAKEWPARAM(twice, twice),
                   reinterpret_cast<LPARAM>(&suggested));
    EXPECT_EQ(fontHeight(IDC_lblTitle), 2 * title);
    EXPECT_EQ(fontHeight(IDC_lblLink), 2 * link);
    EXPECT_TRUE(font(IDC_lblLink).lfUnderline);
    EXPECT_STREQ(font(IDC_lblTitle).lfFaceName, "Arial");
}

TEST_F(AboutForm, ThePictureIsTheIcon) {
    // The yolk is white, the shell beside it coloured, and outside of the shell is the form.
    const auto at = [&](int x, int y) { return pixel(IDC_picInfo, {about.scaled(x), about.scaled(y)}); };
    EXPECT_TRUE(PumpUntil([&] { return at(32, 36) == RGB(255, 255, 255); }));
    EXPECT_EQ(at(50, 40), RGB(0x45, 0xB8, 0x6B));
    EXPECT_EQ(at(32, 56), RGB(0x33, 0xC2, 0xD6));
    EXPECT_EQ(at(1, 1), ::GetSysColor(COLOR_BTNFACE));
}
