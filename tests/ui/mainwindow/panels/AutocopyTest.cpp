// How does a notation get to the clipboard?
#include <string>
#include <vector>

#include "tests/driver/Tips.h"
#include "tests/driver/UiTest.h"

namespace {

class Autocopy : public UiTest {};

}  // namespace

TEST_F(Autocopy, CopiesEveryNotation) {
    const Huevox huevox;
    SetColor(huevox, ColorOf(255, 204, 0));
    const std::vector<std::string> codes = {"#FFCC00",
                                            "#ffcc00",
                                            "&H0000CCFF&",
                                            "RGB(255, 204, 0)",
                                            "0x0000ccff",
                                            "$0000CCFF",
                                            "52479",
                                            "ColorTranslator.FromHtml(\"#FFCC00\")",
                                            "ColorTranslator.FromOle(52479)",
                                            "ColorTranslator.FromWin32(52479)",
                                            "Color(255,204,0)"};
    for (int index = 0; index < 11; ++index) {
        huevox.chooseNotation(index);
        EXPECT_BECOMES(huevox.text(IDC_lblClipboard), codes[index]);
        EXPECT_BECOMES(ClipboardText(), codes[index]);
    }
}

TEST_F(Autocopy, CopiesTheCustomNotation) {
    StoreText("CustomFormat", "rgb & %DR%/%UG%/%LB% (%LD%)");
    const Huevox huevox;
    huevox.chooseNotation(11);
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "rgb & 255/00/00 (255)");
    EXPECT_BECOMES(ClipboardText(), "rgb & 255/00/00 (255)");
}

TEST_F(Autocopy, AnEmptyPreviewPutsAnEmptyTextOnTheClipboard) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    huevox.chooseNotation(11);
    ASSERT_BECOMES(ClipboardText(), "");
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_TEXT));
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_UNICODETEXT));
}

TEST_F(Autocopy, IsOwnedByTheMainWindow) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    EXPECT_EQ(::GetClipboardOwner(), huevox.window());
}

TEST_F(Autocopy, UnicodeTextIsMadeOfTheSameCharacters) {
    StoreText("CustomFormat", "café € %UR%");
    const Huevox huevox;
    huevox.chooseNotation(11);
    EXPECT_BECOMES(ClipboardText(), "caf\xE9 \x80 FF");
    EXPECT_EQ(ClipboardUnicodeText(), L"caf\u00E9 \u20AC FF");
}

TEST_F(Autocopy, UnicodeTextIsNotLeftToThePlatform) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    const ClipboardHeld held;
    // What Windows makes of other formats comes after them.
    EXPECT_EQ(::EnumClipboardFormats(0), static_cast<UINT>(CF_TEXT));
    EXPECT_EQ(::EnumClipboardFormats(CF_TEXT), static_cast<UINT>(CF_UNICODETEXT));
}

TEST_F(Autocopy, NothingIsWrittenUntilADragPauses) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    constexpr ULONGLONG tick = 200;
    DWORD before = ::GetClipboardSequenceNumber();
    POINT thumb = huevox.thumb(IDC_hsbGreen, 0);
    PressButton(thumb);
    // For well over the time of a copy. On a busy machine a step may itself last so long that it is copied.
    const ULONGLONG end = ::GetTickCount64() + 1500;
    for (int step = 0; ::GetTickCount64() < end; ++step) {
        thumb = huevox.thumb(IDC_hsbGreen, 60 + 10 * (step % 12));
        const ULONGLONG moved = ::GetTickCount64();
        MoveMouse(thumb);
        EXPECT_TRUE(Throughout(40, [&] {
            return ::GetClipboardSequenceNumber() == before || ::GetTickCount64() - moved >= tick;
        }));
        before = ::GetClipboardSequenceNumber();
    }
    ReleaseButton(thumb);
    EXPECT_TRUE(Eventually([&] { return ClipboardText() == huevox.text(IDC_lblClipboard); }));
}

TEST_F(Autocopy, WritesOnceForOneChange) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    const DWORD written = ::GetClipboardSequenceNumber();
    EXPECT_TRUE(Throughout(1500, [&] { return ::GetClipboardSequenceNumber() == written; }));
}

TEST_F(Autocopy, TheLettersFollowWithTheClipboard) {
    const Huevox huevox;
    huevox.focusSlider(IDC_hsbRed);
    Press(VK_LEFT);
    EXPECT_BECOMES(huevox.text(Property(0)), "");
    EXPECT_EQ(huevox.text(Property(1)), "WFJ");
    SetColor(huevox, ColorOf(0x33, 0x33, 0x33));
    EXPECT_BECOMES(huevox.text(Property(0)), "W");
    SetColor(huevox, ColorOf(0xC0, 0xC0, 0xC0));
    EXPECT_BECOMES(huevox.text(Property(0)), "FJ");
}

TEST_F(Autocopy, AClipboardHeldOpenIsLeftAloneUntilTheNextChange) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    CopyElsewhere("theirs");
    huevox.focusSlider(IDC_hsbGreen);
    {
        const ClipboardHeld held;
        Press(VK_RIGHT);
        // The letters are refreshed by the tick that would copy.
        ASSERT_BECOMES(huevox.text(Property(0)), "");
        // A key waits until the tick is over; a message of another program is let in on its way.
        Press(VK_TAB);
        ASSERT_TRUE(Eventually([&] { return huevox.focus() != huevox.control(IDC_hsbGreen); }));
    }
    EXPECT_TRUE(Throughout(1000, [] { return ClipboardText() == "theirs"; }));
    EXPECT_TRUE(huevox.isRunning());
    EXPECT_EQ(huevox.dialogCount(), 0);
    huevox.focusSlider(IDC_hsbGreen);
    Press(VK_RIGHT);
    EXPECT_BECOMES(ClipboardText(), "#FF0200");
}

TEST_F(Autocopy, AClickOnTheChosenNotationCopiesAgain) {
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "#FF0000");
    CopyElsewhere("theirs");
    huevox.chooseNotation(0);
    EXPECT_BECOMES(ClipboardText(), "#FF0000");
}

TEST_F(Autocopy, ToolTipsTellWhatIsWhat) {
    const Huevox huevox;
    const auto expectTip = [&](int id, const char* tip) { ExpectTip(huevox, huevox.control(id), tip); };
    expectTip(IDC_lstAutocopy, "Select the format you want to copy to the clipboard");
    expectTip(IDC_lblClipboard, "This is what you get if you paste right now in another application");
    expectTip(IDC_chkJSNamesOnly,
              "Check this check box if you want to copy the JavaScript name instead of the RGB colour code");
    expectTip(Name(5), "Click and type a colour name");
    expectTip(Option(5), "Click here to select this colour mark");
    expectTip(IDC_txtSetRed, "Type the red value");
    expectTip(IDC_txtSetGreen, "Type the green value");
    expectTip(IDC_txtSetBlue, "Type the blue value");
    expectTip(IDC_optSetDec, "Click here for decimal colour values");
    expectTip(IDC_optSetHex, "Click here for hexadecimal colour values");
}
