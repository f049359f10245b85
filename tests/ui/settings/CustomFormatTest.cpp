// How is the custom notation edited?
#include <vector>

#include "tests/driver/FormatDialog.h"
#include "tests/driver/Tips.h"

namespace {

class CustomFormat : public UiTest {};

struct Placeholder {
    int button;
    const char* caption;
    const char* token;
    const char* tip;
};

const std::vector<Placeholder> placeholders = {
    {IDC_cmdUR, "UR", "%UR%", "Insert the code for Red in Upper Case Hex"},
    {IDC_cmdUG, "UG", "%UG%", "Insert the code for Green in Upper Case Hex"},
    {IDC_cmdUB, "UB", "%UB%", "Insert the code for Blue in Upper Case Hex"},
    {IDC_cmdLR, "LR", "%LR%", "Insert the code for Red in Lower Case Hex"},
    {IDC_cmdLG, "LG", "%LG%", "Insert the code for Green in Lower Case Hex"},
    {IDC_cmdLB, "LB", "%LB%", "Insert the code for Blue in Lower Case Hex"},
    {IDC_cmdDR, "DR", "%DR%", "Insert the code for Red in Decimal"},
    {IDC_cmdDG, "DG", "%DG%", "Insert the code for Green in Decimal"},
    {IDC_cmdDB, "DB", "%DB%", "Insert the code for Blue in Decimal"},
    {IDC_cmdLD, "LD", "%LD%", "Insert the code for Long Decimal"},
};

}  // namespace

TEST_F(CustomFormat, ThreeButtonsInTurnFillAnEmptyBox) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    EXPECT_EQ(dialog.text(), "");
    dialog.insert(IDC_cmdUR, "%UR%");
    dialog.insert(IDC_cmdUG, "%UR%%UG%");
    dialog.insert(IDC_cmdUB, "%UR%%UG%%UB%");
    dialog.expectCaret(12);
    EXPECT_BECOMES(dialog.focused(), IDC_txtFormat);
}

TEST_F(CustomFormat, AButtonReplacesWhatIsSelected) {
    StoreText("CustomFormat", "#%UR%");
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    dialog.select(0, 1);
    dialog.insert(IDC_cmdLD, "%LD%%UR%");
    dialog.expectCaret(4);
}

TEST_F(CustomFormat, AButtonReplacesWhatIsSelectedBackwards) {
    StoreText("CustomFormat", "a--b");
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    Press(VK_LEFT);
    Press(VK_LEFT, {VK_SHIFT});
    Press(VK_LEFT, {VK_SHIFT});
    ASSERT_BECOMES(dialog.selection(), (std::pair{1, 3}));
    dialog.insert(IDC_cmdDG, "a%DG%b");
    dialog.expectCaret(5);
}

TEST_F(CustomFormat, WhatIsTypedNextFollowsThePlaceholder) {
    StoreText("CustomFormat", "()");
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    dialog.select(1, 0);
    dialog.insert(IDC_cmdDR, "(%DR%)");
    Type(", ");
    EXPECT_BECOMES(dialog.text(), "(%DR%, )");
    dialog.insert(IDC_cmdDB, "(%DR%, %DB%)");
}

TEST_F(CustomFormat, EveryButtonInsertsItsPlaceholder) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    std::string expected;
    for (const Placeholder& placeholder : placeholders) {
        expected += placeholder.token;
        EXPECT_EQ(TextOf(dialog.control(placeholder.button)), placeholder.caption);
        dialog.insert(placeholder.button, expected);
    }
}

TEST_F(CustomFormat, EveryButtonHasItsToolTip) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    for (const Placeholder& placeholder : placeholders)
        ExpectTip(huevox, dialog.control(placeholder.button), placeholder.tip);
}

TEST_F(CustomFormat, AButtonIsPressedByTheSpaceBarAndGivesTheFocusBack) {
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    Press(VK_TAB);
    ASSERT_BECOMES(dialog.focused(), IDC_cmdUR);
    Press(VK_SPACE);
    EXPECT_BECOMES(dialog.text(), "%UR%");
    EXPECT_BECOMES(dialog.focused(), IDC_txtFormat);
    EXPECT_EQ(dialog.selection(), (std::pair{4, 4}));
    Press(VK_RETURN);
    dialog.waitForEnd();
    EXPECT_EQ(StoredText("CustomFormat"), "%UR%");
}

TEST_F(CustomFormat, OpensWithTheCaretAtTheEndAndNothingSelected) {
    StoreText("CustomFormat", "#%UR%%UG%%UB%");
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    EXPECT_EQ(TextOf(dialog.window()), "Custom Format");
    EXPECT_EQ(dialog.text(), "#%UR%%UG%%UB%");
    EXPECT_EQ(dialog.selection(), (std::pair{13, 13}));
    Type(";");
    EXPECT_BECOMES(dialog.text(), "#%UR%%UG%%UB%;");
}

TEST_F(CustomFormat, KeepsSelectionAndTextWhileAnotherProgramIsInFront) {
    StoreText("CustomFormat", "before");
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    dialog.select(2, 3);
    VisitAnotherProgram(dialog.window());
    ASSERT_BECOMES(dialog.focused(), IDC_txtFormat);
    dialog.insert(IDC_cmdLG, "be%LG%e");
}

TEST_F(CustomFormat, CancelChangesNothing) {
    StoreText("CustomFormat", "<%LR%>");
    StoreText("FormatIndex", "11");
    const Huevox huevox;
    ASSERT_BECOMES(ClipboardText(), "<ff>");
    const FormatDialog dialog(huevox);
    dialog.insert(IDC_cmdUR, "<%LR%>%UR%");
    dialog.insert(IDC_cmdUG, "<%LR%>%UR%%UG%");
    CopyElsewhere("theirs");
    dialog.click(IDC_cmdCancel);
    EXPECT_EQ(StoredText("CustomFormat"), "<%LR%>");
    EXPECT_BECOMES(ClipboardText(), "<ff>");
    EXPECT_EQ(huevox.text(IDC_lblClipboard), "<ff>");
}

TEST_F(CustomFormat, EscapeAndTheCloseBoxAreCancel) {
    StoreText("CustomFormat", "kept");
    const Huevox huevox;
    const FormatDialog first(huevox);
    Type("x");
    ASSERT_BECOMES(first.text(), "keptx");
    Press(VK_ESCAPE);
    first.waitForEnd();
    const FormatDialog second(huevox);
    EXPECT_EQ(second.text(), "kept");
    Type("y");
    ASSERT_BECOMES(second.text(), "kepty");
    Press(VK_F4, {VK_MENU});
    second.waitForEnd();
    EXPECT_EQ(StoredText("CustomFormat"), "kept");
    EXPECT_TRUE(huevox.isRunning());
}

TEST_F(CustomFormat, OpensWithTheStoredTemplateEachTime) {
    StoreText("CustomFormat", "one");
    const Huevox huevox;
    const FormatDialog first(huevox);
    EXPECT_EQ(first.text(), "one");
    first.retype("two");
    first.click(IDC_cmdOK);
    const FormatDialog second(huevox);
    EXPECT_EQ(second.text(), "two");
    EXPECT_EQ(second.selection(), (std::pair{3, 3}));
    second.click(IDC_cmdCancel);
    StoreText("CustomFormat", "three");
    const FormatDialog third(huevox);
    EXPECT_EQ(third.text(), "three");
}

TEST_F(CustomFormat, StoresAnEmptyTemplate) {
    StoreText("CustomFormat", "something");
    StoreText("FormatIndex", "11");
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    dialog.retype("");
    dialog.click(IDC_cmdOK);
    EXPECT_EQ(StoredText("CustomFormat"), "");
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "");
}

TEST_F(CustomFormat, StoresWhatIsTypedAsItIs) {
    StoreText("FormatIndex", "11");
    const Huevox huevox;
    const FormatDialog dialog(huevox);
    dialog.retype("  &H%UB%&&  100% %ur% %XX% %  ");
    dialog.click(IDC_cmdOK);
    EXPECT_EQ(StoredText("CustomFormat"), "  &H%UB%&&  100% %ur% %XX% %  ");
    EXPECT_BECOMES(huevox.text(IDC_lblClipboard), "  &H00&&  100% %ur% %XX% %  ");
    EXPECT_BECOMES(ClipboardText(), "  &H00&&  100% %ur% %XX% %  ");
}
