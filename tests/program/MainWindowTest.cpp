// Are the main window's menu, layout and handles as they should be, seen from inside?
#include <array>
#include <string>
#include <vector>

#include "tests/driver/Input.h"
#include "tests/driver/WindowText.h"
#include "tests/program/FreeHandles.h"
#include "tests/program/MainWindowFixture.h"

namespace {

class MainWindow : public ShownMainWindow {
protected:
    HMENU menu() const { return ::GetMenu(window.handle()); }
    bool isMenuItemEnabled(int command) const {
        return (::GetMenuState(menu(), command, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) == 0;
    }
    bool isButtonEnabled(int command) const {
        return ::SendMessageA(control(IDC_tbrTools), TB_ISBUTTONENABLED, command, 0) != 0;
    }
    /// Expects a mark's controls to stand in one column, all above bottom.
    void expectColumn(int mark, LONG bottom) const {
        const RECT name = AreaOf(control(IDC_txtName + mark));
        const RECT option = AreaOf(control(IDC_optColor + mark));
        const RECT colour = AreaOf(sample(mark));
        const RECT letters = AreaOf(control(IDC_lblColorProp + mark));
        EXPECT_EQ(name.left, colour.left);
        EXPECT_EQ(name.right, colour.right);
        EXPECT_EQ(letters.left, colour.left);
        EXPECT_LE(name.bottom, option.top);
        EXPECT_LE(option.bottom, colour.top);
        EXPECT_LE(colour.bottom, letters.top);
        EXPECT_LE(letters.bottom, bottom);
    }
};

struct Item {
    int command;
    const char* text;
};

const std::vector<Item> items = {
    {IDM_mnuFileNew, "&New Palette\tCtrl+N"},
    {IDM_mnuFileOpen, "&Open Palette In Huevox...\tCtrl+O"},
    {IDM_mnuFileOpenInNotepad, "Open Palette &In Notepad...\tCtrl+I"},
    {IDM_mnuFileSave, "&Save Palette\tCtrl+S"},
    {IDM_mnuFileSaveAs, "Save Palette &As..."},
    {IDM_mnuFileExit, "&Exit"},
    {IDM_mnuEditCopyColor, "&Copy Colour From Selected Colour Mark\tF2"},
    {IDM_mnuEditPasteColor, "&Paste Colour To Selected Colour Mark\tF3"},
    {IDM_mnuEditFind, "&Find JavaScript Names\tF5"},
    {IDM_mnuEditUndo, "&Undo\tCtrl+Z"},
    {IDM_mnuEditRedo, "&Redo\tCtrl+Y"},
    {IDM_mnuToolsCustomFormat, "&Custom Format...\tF8"},
    {IDM_mnuToolsOptions, "&Options...\tF9"},
    {IDM_mnuToolsContrast, "Co&ntrast\tF7"},
    {IDM_mnuHelpHelp, "&Help\tF1"},
    {IDM_mnuHomePage, "&Visit Huevox Home Page"},
    {IDM_mnuHelpColorProperties, "&Colour Properties...\tF4"},
    {IDM_mnuHelpAboutHuevox, "&About Huevox..."},
};

std::string MenuText(HMENU menu, UINT item, UINT by) {
    std::array<char, 100> text{};
    ::GetMenuStringA(menu, item, text.data(), text.size(), by);
    return text.data();
}

struct Child {
    HWND window;
    std::string kind;
    std::string text;
    RECT place;
};

BOOL CALLBACK AddChild(HWND child, LPARAM parameter) {
    RECT place{};
    ::GetWindowRect(child, &place);
    reinterpret_cast<std::vector<Child>*>(parameter)->push_back(
        {child, ClassOf(child), TextOf(child), place});
    return TRUE;
}

std::vector<Child> Children(HWND window) {
    std::vector<Child> children;
    ::EnumChildWindows(window, AddChild, reinterpret_cast<LPARAM>(&children));
    return children;
}

LONG StyleOf(const Child& child) { return ::GetWindowLongA(child.window, GWL_STYLE); }

/// A hidden control may stand where another is shown: they take turns.
bool IsShown(const Child& child) { return (StyleOf(child) & WS_VISIBLE) != 0; }

/// Frames stand around or behind other controls.
bool IsFrame(const Child& child) {
    const bool isGroup = child.kind == "Button" && (StyleOf(child) & BS_TYPEMASK) == BS_GROUPBOX;
    const LONG_PTR type = child.kind == "Static" ? StyleOf(child) & SS_TYPEMASK : SS_LEFT;
    return isGroup || type == SS_ETCHEDHORZ || type == SS_GRAYRECT || child.kind == "FieldFrame" ||
           ::GetDlgCtrlID(child.window) == IDC_picSampleContainer;
}

SIZE TextSize(const Child& child) {
    const HDC context = ::GetDC(child.window);
    const HGDIOBJ before =
        ::SelectObject(context, reinterpret_cast<HFONT>(::SendMessageA(child.window, WM_GETFONT, 0, 0)));
    SIZE size{};
    ::GetTextExtentPoint32A(context, child.text.c_str(), static_cast<int>(child.text.size()), &size);
    ::SelectObject(context, before);
    ::ReleaseDC(child.window, context);
    return size;
}

/// Leaves out those whose text is for screen readers only.
bool IsToBeRead(const Child& child) {
    const int id = ::GetDlgCtrlID(child.window);
    const bool isMarkOption = id >= IDC_optColor && id < IDC_optColor + 6;
    const bool isPainted = child.kind == "PictureBox" || child.kind == "CellStrip";
    return IsShown(child) && !isMarkOption && !isPainted;
}

}  // namespace

TEST_F(MainWindow, TheMenuBarIsFileEditToolsHelp) {
    const std::vector<std::string> captions = {"&File", "&Edit", "&Tools", "&Help"};
    ASSERT_EQ(::GetMenuItemCount(menu()), 4);
    for (UINT i = 0; i < 4; ++i) EXPECT_EQ(MenuText(menu(), i, MF_BYPOSITION), captions[i]);
}

TEST_F(MainWindow, EveryMenuItemHasItsCaptionAndShortcut) {
    for (const Item& item : items) EXPECT_EQ(MenuText(menu(), item.command, MF_BYCOMMAND), item.text);
}

TEST_F(MainWindow, MenuItemAndButtonAreEnabledAlike) {
    for (const Item& item : items) {
        if (::SendMessageA(control(IDC_tbrTools), TB_COMMANDTOINDEX, item.command, 0) < 0) continue;
        EXPECT_EQ(isMenuItemEnabled(item.command), isButtonEnabled(item.command)) << item.text;
    }
    EXPECT_TRUE(isMenuItemEnabled(IDM_mnuFileExit));
    EXPECT_TRUE(isMenuItemEnabled(IDM_mnuEditCopyColor));
    EXPECT_FALSE(isMenuItemEnabled(IDM_mnuEditPasteColor));
    command(IDM_mnuEditCopyColor);
    EXPECT_TRUE(isMenuItemEnabled(IDM_mnuEditPasteColor));
    EXPECT_TRUE(isButtonEnabled(IDM_mnuEditPasteColor));
}

TEST_F(MainWindow, NothingOverlapsAndNothingLeavesTheWindow) {
    const std::vector<Child> children = Children(window.handle());
    RECT client{};
    ::GetClientRect(window.handle(), &client);
    ::MapWindowPoints(window.handle(), nullptr, reinterpret_cast<POINT*>(&client), 2);
    for (const Child& one : children) {
        RECT both{};
        ::UnionRect(&both, &one.place, &client);
        EXPECT_TRUE(IsFrame(one) || ::EqualRect(&both, &client))
            << one.kind << ' ' << one.text << " leaves the window: " << one.place.left << ' ' << one.place.top
            << ' ' << one.place.right << ' ' << one.place.bottom;
        for (const Child& other : children) {
            const bool isApart = !::IntersectRect(&both, &one.place, &other.place);
            const bool isShownWithIt = one.window != other.window && IsShown(one) && IsShown(other);
            EXPECT_TRUE(!isShownWithIt || IsFrame(one) || IsFrame(other) || isApart)
                << one.kind << ' ' << one.text << " overlaps " << other.kind << ' ' << other.text;
        }
    }
}

TEST_F(MainWindow, NoTextIsCutOff) {
    for (const Child& child : Children(window.handle())) {
        if (!IsToBeRead(child)) continue;
        const SIZE needed = TextSize(child);
        RECT inside{};
        ::GetClientRect(child.window, &inside);
        const bool isChoice = child.kind == "Button" && (StyleOf(child) & BS_TYPEMASK) != BS_PUSHBUTTON;
        if (isChoice && !child.text.empty()) inside.right -= window.scaled(16);
        if (child.text.find('&') != std::string::npos) continue;  // the access key's sign is not shown
        EXPECT_LE(needed.cx, inside.right) << child.kind << ' ' << child.text;
        if (!IsFrame(child)) {
            EXPECT_LE(child.text.empty() ? 0 : needed.cy, inside.bottom) << child.kind << ' ' << child.text;
        }
    }
}

TEST_F(MainWindow, NamesSamplesAndLettersStandInSixColumnsAsWideAsTheBar) {
    const RECT bar = AreaOf(control(IDC_lblColorBar));
    EXPECT_EQ(bar.right - bar.left, window.scaled(734));
    EXPECT_EQ(bar.bottom - bar.top, window.scaled(20));
    for (int mark = 0; mark < markCount; ++mark) expectColumn(mark, bar.top);
    EXPECT_EQ(AreaOf(sample(0)).left, bar.left);
    EXPECT_EQ(AreaOf(sample(5)).right, bar.right);
}

TEST_F(MainWindow, ChangesOfColorLeaveTheHandlesFlat) {
    const auto change = [&](int value) {
        const auto slider = reinterpret_cast<LPARAM>(control(IDC_hsbRed + value % 3));
        ::SendMessageA(window.handle(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, value * 7 % 256), slider);
    };
    for (int value = 0; value < 100; ++value) change(value);
    const int before = FreeHandles();
    for (int value = 0; value < 250; ++value) change(value);
    EXPECT_EQ(FreeHandles(), before);
}
