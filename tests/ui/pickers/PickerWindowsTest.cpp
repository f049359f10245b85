// Where do the palette windows open, what do they leave to other windows, and when do they go?
#include <array>
#include <utility>
#include <vector>

#include "tests/driver/PickerWindow.h"
#include "tests/driver/UiTest.h"

namespace {

class PickerWindows : public UiTest {};

constexpr std::array<PickerWindow::Grid, 3> grids = {websafeGrid, failsafeGrid, javaScriptGrid};

bool IsApart(const RECT& one, const RECT& other) {
    RECT both{};
    return !::IntersectRect(&both, &one, &other);
}

bool IsOnScreen(const RECT& place) {
    const RECT screen = {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
    RECT both{};
    ::IntersectRect(&both, &place, &screen);
    return ::EqualRect(&both, &place) != FALSE;
}

std::pair<int, int> Corner(const RECT& place) { return {place.left, place.top}; }

/// A window, what it owns and all that stands in them.
struct Windows {
    HWND form;
    int count;
};

BOOL CALLBACK Count(HWND, LPARAM parameter) {
    ++reinterpret_cast<Windows*>(parameter)->count;
    return TRUE;
}

BOOL CALLBACK CountWithOwned(HWND window, LPARAM parameter) {
    auto& windows = *reinterpret_cast<Windows*>(parameter);
    if (window != windows.form && ::GetWindow(window, GW_OWNER) != windows.form) return TRUE;
    ++windows.count;
    ::EnumChildWindows(window, Count, parameter);
    return TRUE;
}

}  // namespace

TEST_F(PickerWindows, TheButtonsSayWhatTheyOpen) {
    const Huevox huevox;
    const std::array<std::pair<int, const char*>, 3> tips = {{
        {IDC_cmdWebsafe, "Click here to open the Websafe Palette"},
        {IDC_cmdFailsafe, "Click here to open the Failsafe Palette"},
        {IDC_cmdJavaScript, "Click here to open the JavaScript Palette"},
    }};
    for (const auto& [button, tip] : tips) {
        MoveMouse(CenterOf(huevox.control(button)));
        EXPECT_BECOMES(huevox.toolTip(), tip);
    }
}

TEST_F(PickerWindows, AreSmallToolWindowsWithoutOwner) {
    const Huevox huevox;
    for (const auto& [grid, caption] :
         {std::pair{websafeGrid, "Websafe"}, {failsafeGrid, "Failsafe"}, {javaScriptGrid, "JavaScript"}}) {
        const PickerWindow picker(huevox, grid);
        EXPECT_EQ(TextOf(picker.window()), caption);
        EXPECT_EQ(::GetWindow(picker.window(), GW_OWNER), nullptr);
        EXPECT_TRUE(::GetWindowLongA(picker.window(), GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
        EXPECT_FALSE(::GetWindowLongA(picker.window(), GWL_STYLE) & WS_THICKFRAME);
    }
}

TEST_F(PickerWindows, ConsistOfAtMostTenWindowsEach) {
    const Huevox huevox;
    for (const auto& grid : grids) {
        const PickerWindow picker(huevox, grid);
        picker.hover({0, 0});
        ASSERT_TRUE(Eventually([&] { return !huevox.toolTip().empty(); }));
        Windows windows = {picker.window(), 0};
        ::EnumWindows(CountWithOwned, reinterpret_cast<LPARAM>(&windows));
        EXPECT_GE(windows.count, 3);
        EXPECT_LE(windows.count, 10);
    }
}

TEST_F(PickerWindows, OpenBesideTheMainWindowAndEachOther) {
    const Huevox huevox;
    RECT main{};
    ::GetWindowRect(huevox.window(), &main);
    std::vector<RECT> places = {main};
    for (const auto& grid : grids) {
        const RECT place = PickerWindow(huevox, grid).place();
        EXPECT_TRUE(IsOnScreen(place)) << grid.name;
        for (const RECT& other : places) {
            EXPECT_TRUE(IsApart(place, other))
                << grid.name << " at " << place.left << ' ' << place.top << " covers what is at "
                << other.left << ' ' << other.top << ' ' << other.right << ' ' << other.bottom;
        }
        places.push_back(place);
    }
}

TEST_F(PickerWindows, ThereIsOneOfEachAndASecondClickBringsItForward) {
    const Huevox huevox;
    for (const auto& grid : grids) {
        const PickerWindow picker(huevox, grid);
        picker.moveTo(30, 40);
        ASSERT_BECOMES(Corner(picker.place()), (std::pair{30, 40}));
        const HWND window = picker.window();
        huevox.focusByClick(Name(0));
        ASSERT_BECOMES(::GetForegroundWindow(), huevox.window());
        picker.clickButton();
        EXPECT_BECOMES(::GetForegroundWindow(), window);
        EXPECT_EQ(huevox.formCount(grid.name), 1);
        EXPECT_EQ(Corner(picker.place()), (std::pair{30, 40}));
        picker.close();
    }
}

TEST_F(PickerWindows, ComeBackToWhereTheUserHasPutThem) {
    const Huevox huevox;
    for (const auto& grid : grids) {
        const PickerWindow picker(huevox, grid);
        picker.moveTo(50, 60);
        ASSERT_BECOMES(Corner(picker.place()), (std::pair{50, 60}));
        picker.close();
        picker.open();
        EXPECT_BECOMES(Corner(picker.place()), (std::pair{50, 60}));
        picker.close();
    }
}

TEST_F(PickerWindows, ComeBackToTheScreenFromWhereThereIsNone) {
    const Huevox huevox;
    const PickerWindow picker(huevox, failsafeGrid);
    const RECT first = picker.place();
    picker.moveTo(5'000, 5'000);
    ASSERT_BECOMES(Corner(picker.place()), (std::pair{5'000, 5'000}));
    picker.close();
    picker.open();
    EXPECT_BECOMES(Corner(picker.place()), Corner(first));
}

TEST_F(PickerWindows, StayOpenWhileSwatchesAreTried) {
    const Huevox huevox;
    const PickerWindow websafe(huevox, websafeGrid);
    const PickerWindow failsafe(huevox, failsafeGrid);
    websafe.click({0, 5});
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 0, 0));
    failsafe.click({15, 0});
    EXPECT_BECOMES(huevox.sliders(), ColorOf(255, 255, 255));
    websafe.click({0, 4});
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 0, 51));
    EXPECT_TRUE(websafe.window() && failsafe.window());
}

TEST_F(PickerWindows, LeaveTheShortcutsToTheMainWindow) {
    const Huevox huevox;
    const PickerWindow failsafe(huevox, failsafeGrid);
    Press(VK_F2);
    failsafe.click({11, 0});  // the input behind the key has arrived when this has
    ASSERT_BECOMES(huevox.sliders(), ColorOf(0, 255, 0));
    EXPECT_FALSE(huevox.isToolButtonEnabled(IDM_mnuEditPasteColor));
    huevox.focusByClick(Name(0));
    Press(VK_F2);
    EXPECT_BECOMES(huevox.isToolButtonEnabled(IDM_mnuEditPasteColor), true);
}

TEST_F(PickerWindows, AReturnFromOneCopiesTheColorAgain) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    const PickerWindow failsafe(huevox, failsafeGrid);
    CopyElsewhere("theirs");
    huevox.focusByClick(Name(0));
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
}

TEST_F(PickerWindows, TakeNoInputWhileAMessageWaits) {
    const Huevox huevox;
    const PickerWindow websafe(huevox, websafeGrid);
    const PickerWindow failsafe(huevox, failsafeGrid);
    for (int time = 0; time < 2; ++time) {
        const HWND message = BringRefusal(huevox);
        ASSERT_TRUE(message);
        EXPECT_FALSE(websafe.isEnabled());
        EXPECT_FALSE(failsafe.isEnabled());
        websafe.click({0, 5});
        Click(::GetDlgItem(message, IDOK));  // arrives behind the click on the swatch
        EXPECT_BECOMES(huevox.dialogCount(), 0);
        EXPECT_BECOMES(websafe.isEnabled(), true);
        EXPECT_BECOMES(failsafe.isEnabled(), true);
        EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
    }
    websafe.click({0, 5});
    EXPECT_BECOMES(huevox.sliders(), ColorOf(0, 0, 0));
}

TEST_F(PickerWindows, GoWithTheMainWindow) {
    const Huevox huevox;
    for (const auto& grid : grids) PickerWindow(huevox, grid).open();
    Close(huevox);
}

TEST_F(PickerWindows, StayWhenTheMainWindowDoes) {
    const Huevox huevox;
    const PickerWindow websafe(huevox, websafeGrid);
    websafe.click({0, 5});
    ASSERT_BECOMES(huevox.sliders(), ColorOf(0, 0, 0));
    ::PostMessageA(huevox.window(), WM_CLOSE, 0, 0);
    HWND question = huevox.waitForDialog();
    ASSERT_TRUE(question);
    EXPECT_FALSE(websafe.isEnabled());
    Answer(question, IDCANCEL);
    EXPECT_BECOMES(websafe.isEnabled(), true);
    ::PostMessageA(huevox.window(), WM_CLOSE, 0, 0);
    question = huevox.waitForDialog();
    ASSERT_TRUE(question);
    Answer(question, IDNO);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}
