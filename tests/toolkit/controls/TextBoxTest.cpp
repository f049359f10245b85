// What does a box take that a file in the system's code page cannot hold? These tests run where it is that of
// Western Europe.
#include <string>
#include <vector>

#include "tests/driver/Input.h"
#include "tests/toolkit/FormFixture.h"
#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Text.h"

namespace {

class TextBoxCharacters : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        show();
        Click(box().handle());
        ASSERT_TRUE(PumpUntil([&] { return ::GetFocus() == box().handle(); }));
        box().Change.bind([this] { seen.push_back(box().text()); });
    }
    void TearDown() override { form.unload(); }

    TextBox& box() { return form.txtTest(0); }
    /// Sends the units of UTF-16 as the keyboard's messages.
    void type(std::wstring_view units) {
        for (const wchar_t unit : units) ::SendMessageW(box().handle(), WM_CHAR, unit, 1);
    }
    void paste(std::wstring_view text) {
        ASSERT_TRUE(Eventually([&] { return ::OpenClipboard(form.handle()) != FALSE; }));
        ::EmptyClipboard();
        OwnedGlobal memory(::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, (text.size() + 1) * sizeof(wchar_t)));
        text.copy(static_cast<wchar_t*>(::GlobalLock(memory.get())), text.size());
        ::GlobalUnlock(memory.get());
        ::SetClipboardData(CF_UNICODETEXT, memory.release());
        ::CloseClipboard();
        ::SendMessageW(box().handle(), WM_PASTE, 0, 0);
    }
    void undo() { ::SendMessageW(box().handle(), EM_UNDO, 0, 0); }
    /// "|" stands at the caret.
    std::string withCaret() {
        std::wstring text = Wide(box().text());
        return Utf8(text.insert(box().selection().end, L"|"));
    }

    std::vector<std::string> seen;  ///< at each Change
};

using Seen = std::vector<std::string>;

}  // namespace

TEST_F(TextBoxCharacters, WhatTheCodePageHoldsIsTypedAsItIs) {
    type(L"é€");
    EXPECT_EQ(seen, (Seen{"é", "é€"}));
    EXPECT_EQ(withCaret(), "é€|");
}

TEST_F(TextBoxCharacters, AnyOtherIsAQuestionMarkBeforeChangeIsRaised) {
    type(L"aЖ表");
    EXPECT_EQ(seen, (Seen{"a", "a?", "a??"}));
}

TEST_F(TextBoxCharacters, ATypedOneCanBeTakenBack) {
    type(L"Ж");
    ASSERT_EQ(box().text(), "?");
    undo();
    EXPECT_EQ(box().text(), "");
}

TEST_F(TextBoxCharacters, OneThatIsTypedInTwoHalvesIsOne) {
    type(L"a\U0001F3A8b");
    EXPECT_EQ(seen, (Seen{"a", "a?", "a?b"}));
}

TEST_F(TextBoxCharacters, AHalfAloneIsNoCharacter) {
    type(L"\xD83C");
    EXPECT_EQ(seen, Seen());
    type(L"a\xDFA8");
    EXPECT_EQ(seen, (Seen{"a", "a?"}));
}

TEST_F(TextBoxCharacters, PastedOnesAreReplacedAndThePastingCanBeTakenBack) {
    box().setText("ab");
    box().setSelection({1, 1});
    seen.clear();
    paste(L"1Ж\U0001F3A82");
    EXPECT_EQ(seen, (Seen{"a1??2b"}));
    EXPECT_EQ(withCaret(), "a1??2|b");
    undo();
    EXPECT_EQ(box().text(), "ab");
}

TEST_F(TextBoxCharacters, OfSeveralPastedLinesTheFirstIsTaken) {
    paste(L"Жук\r\nЖаба");
    EXPECT_EQ(box().text(), "???");
}

TEST_F(TextBoxCharacters, PastedOnesTakeThePlaceOfTheSelectionAndNoMoreRoomThanThereIs) {
    box().setMaxLength(4);
    box().setText("abcd");
    box().setSelection({1, 3});
    paste(L"\U0001F3A8\U0001F3A8\U0001F3A8");
    EXPECT_EQ(box().text(), "a??d");
    paste(L"Ж");
    EXPECT_EQ(box().text(), "a??d");
    box().selectAll();
    paste(L"Жабаа");
    EXPECT_EQ(box().text(), "????");
}

TEST_F(TextBoxCharacters, WhatAnotherProgramWritesIsReplaced) {
    ::SendMessageW(box().handle(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"é\U0001F3A8Ж"));
    EXPECT_EQ(seen, (Seen{"é??"}));
}

TEST_F(TextBoxCharacters, WhatAnotherProgramInsertsIsReplacedAndTheCaretStaysBehindIt) {
    box().setText("ab");
    box().setSelection({1, 1});
    seen.clear();
    ::SendMessageW(box().handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"Ж\U0001F3A8"));
    EXPECT_EQ(seen, (Seen{"a??b"}));
    EXPECT_EQ(withCaret(), "a??|b");
}

TEST_F(TextBoxCharacters, WhatTheProgramWritesIsReplacedToo) {
    box().setText("Жé");
    EXPECT_EQ(seen, (Seen{"?é"}));
    box().setText("Жé");
    EXPECT_EQ(seen, (Seen{"?é"})) << "it is what the box shows already";
}

TEST_F(TextBoxCharacters, ReachTheHandlerOfKeysAsTheyWereTyped) {
    std::wstring typed;
    box().KeyPress.bind([&](wchar_t& character) {
        typed += character;
        ::CharUpperBuffW(&character, 1);
    });
    type(L"fЖé");
    EXPECT_EQ(typed, L"fЖé");
    EXPECT_EQ(box().text(), "F?É");
}
