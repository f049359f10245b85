// What is there when the program has started?
#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tests/driver/RemoteCall.h"
#include "tests/driver/UiTest.h"

namespace {

class Start : public UiTest {};

constexpr std::array tabOrder = {IDC_hsbRed,
                                 IDC_hsbGreen,
                                 IDC_hsbBlue,
                                 IDC_txtSetRed,
                                 IDC_txtSetGreen,
                                 IDC_txtSetBlue,
                                 IDC_optSetDec,
                                 Name(0),
                                 Name(1),
                                 Name(2),
                                 Name(3),
                                 Name(4),
                                 Name(5),
                                 Option(0),
                                 IDC_lblColorBar,
                                 IDC_lstAutocopy,
                                 IDC_chkJSNamesOnly,
                                 IDC_cmdWebsafe,
                                 IDC_cmdFailsafe,
                                 IDC_cmdJavaScript,
                                 IDC_chkColorPick,
                                 IDC_hsbRed};

std::string ListRow(const Huevox& huevox, int row) {
    std::array<wchar_t, 100> text{};
    ::SendMessageW(huevox.control(IDC_lstAutocopy), LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
    return {text.begin(), std::ranges::find(text, L'\0')};
}

/// Whether the running program finds a library by its name alone.
bool Finds(const Huevox& huevox, std::string_view library) {
    const ProcessOf program(huevox.window());
    return program.call("kernel32", "LoadLibraryA", program.place(library)) != 0;
}

}  // namespace

TEST_F(Start, ShowsANewPaletteOfSixMarks) {
    const Huevox huevox;
    const std::array<Color, 6> colors = {ColorOf(255, 0, 0),   ColorOf(255, 255, 0), ColorOf(0, 255, 0),
                                         ColorOf(0, 255, 255), ColorOf(0, 0, 255),   ColorOf(255, 0, 255)};
    EXPECT_EQ(huevox.title(), "Huevox - New palette");
    for (int mark = 0; mark < 6; ++mark) {
        EXPECT_EQ(huevox.text(Name(mark)), "Type a colour name");
        EXPECT_BECOMES(huevox.sample(mark), colors[mark]);
        EXPECT_BECOMES(huevox.backColor(Name(mark)), white);
    }
}

TEST_F(Start, TheLettersOfAllSixDefaultMarksAreWFJ) {
    const Huevox huevox;
    for (int mark = 0; mark < 6; ++mark) EXPECT_EQ(huevox.text(Property(mark)), "WFJ");
}

TEST_F(Start, Mark0IsSelectedAndItsSampleAloneIsEnabled) {
    const Huevox huevox;
    for (int mark = 0; mark < 6; ++mark) {
        EXPECT_EQ(huevox.isChecked(Option(mark)), mark == 0);
        EXPECT_EQ(huevox.isEnabled(IDC_picSample + mark), mark == 0);
    }
    EXPECT_EQ(huevox.sliders(), ColorOf(255, 0, 0));
}

TEST_F(Start, SamplesStandInsideTheirContainerWhichIsDisabled) {
    const Huevox huevox;
    const HWND container = huevox.control(IDC_picSampleContainer);
    EXPECT_FALSE(::IsWindowEnabled(container));
    for (int mark = 0; mark < 6; ++mark) {
        EXPECT_EQ(::GetParent(huevox.control(IDC_picSample + mark)), container);
    }
}

TEST_F(Start, TheModeIsDecimalAndNothingIsToBeSet) {
    const Huevox huevox;
    EXPECT_TRUE(huevox.isChecked(IDC_optSetDec));
    EXPECT_FALSE(huevox.isChecked(IDC_optSetHex));
    EXPECT_EQ(huevox.text(IDC_txtSetRed), "255");
    EXPECT_EQ(huevox.text(IDC_txtSetGreen), "0");
    EXPECT_EQ(huevox.text(IDC_txtSetBlue), "0");
    EXPECT_FALSE(huevox.isEnabled(IDC_cmdSetColor));
    EXPECT_TRUE(huevox.isEnabled(IDC_optSetDec));
    EXPECT_TRUE(huevox.isEnabled(IDC_optSetHex));
}

TEST_F(Start, TheListHoldsTheTwelveNotations) {
    const Huevox huevox;
    const std::vector<std::string> notations = {"HTML Hex", "Lower Case HTML Hex", "VB Hex", "VB",
                                                "C++ Hex",  "Delphi Hex",          "Access", ".NET HTML",
                                                ".NET OLE", ".NET Win32",          "Java",   "Custom"};
    ASSERT_EQ(huevox.send(IDC_lstAutocopy, LB_GETCOUNT), 12);
    for (int row = 0; row < 12; ++row) EXPECT_EQ(ListRow(huevox, row), notations[row]);
}

TEST_F(Start, TheFirstNotationIsShownAndCopied) {
    const Huevox huevox;
    EXPECT_BECOMES(huevox.listIndex(), 0);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "#FF0000");
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
    EXPECT_EQ(huevox.text(IDC_lblClipboardInfo), "On the clipboard");
}

TEST_F(Start, TheBarShowsTheRampOfTheFirstMark) {
    const Huevox huevox;
    EXPECT_BECOMES(huevox.barStep(0), ColorOf(255, 0, 0));
    EXPECT_BECOMES(huevox.barStep(100), ColorOf(255, 100, 100));
    EXPECT_BECOMES(huevox.barStep(255), ColorOf(255, 255, 255));
}

TEST_F(Start, OfTrueColorsNoMessageIsShown) {
    const Huevox huevox;
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
    EXPECT_EQ(huevox.dialogCount(), 0);
}

TEST_F(Start, MinimisedTheColorReachesTheClipboardTheSame) {
    const Huevox huevox(SW_SHOWMINNOACTIVE);
    EXPECT_TRUE(::IsIconic(huevox.window()));
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
}

TEST_F(Start, MaximisedTheWindowHasItsOneSize) {
    SIZE size{};
    {
        const Huevox normal;
        const RECT place = AreaOf(normal.window());
        size = {place.right - place.left, place.bottom - place.top};
    }
    const Huevox huevox(SW_SHOWMAXIMIZED);
    EXPECT_BECOMES(::IsZoomed(huevox.window()), FALSE);
    const RECT place = AreaOf(huevox.window());
    EXPECT_EQ(place.right - place.left, size.cx);
    EXPECT_EQ(place.bottom - place.top, size.cy);
    EXPECT_BECOMES(huevox.focused(), IDC_hsbRed);
}

TEST_F(Start, ADriveWithoutADiskBringsUpNoBoxOfTheSystem) {
    // A program takes over what its starter has set.
    const UINT before = ::SetErrorMode(0);
    const Huevox huevox;
    ::SetErrorMode(before);
    const DWORD mode = ProcessOf(huevox.window()).call("kernel32", "GetErrorMode");
    EXPECT_TRUE(mode & SEM_FAILCRITICALERRORS) << mode;
}

TEST_F(Start, ASecondCopyOpensASecondWindowWithoutAMessage) {
    const Huevox first;
    const Huevox second;
    EXPECT_NE(first.window(), second.window());
    EXPECT_TRUE(::IsWindowVisible(second.window()));
    EXPECT_EQ(second.dialogCount(), 0);
    EXPECT_TRUE(first.isRunning());
}

TEST_F(Start, TheFocusIsOnTheFirstSliderAndTheTabKeyGoesThroughTheControlsInOrder) {
    const Huevox huevox;
    for (const int id : tabOrder) {
        ASSERT_BECOMES(huevox.focused(), id);
        Press(VK_TAB);
    }
}

TEST_F(Start, LooksForLibrariesInTheSystemFolderOnly) {
    constexpr const char* planted = "PlantedBesideTheProgram.dll";
    ASSERT_TRUE(::CopyFileA(HUEVOX_STAND_IN_VIEWER, planted, FALSE));
    {
        const Huevox huevox;
        EXPECT_TRUE(Finds(huevox, "version.dll"));
        EXPECT_FALSE(Finds(huevox, planted));
    }
    EXPECT_TRUE(::DeleteFileA(planted));
}
