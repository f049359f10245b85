// Is a file replaced unasked whose name gets its extension after the dialog's own question?
#include <commdlg.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "palette/FileDialogs.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"
#include "tests/program/ReplacedFunction.h"
#include "tests/program/SavedFolder.h"
#include "tests/toolkit/TestForm.h"

namespace {

constexpr const char* question = "Reds.txt already exists.\r\nDo you want to replace it?";
constexpr const char* title = "Save Palette As";

/// What the dialog is answered, one after the other; then it is cancelled.
std::vector<std::string> names;
std::size_t timesShown = 0;

BOOL WINAPI ShowLiteralDialog(OPENFILENAMEW* record) {
    if (++timesShown > names.size()) return FALSE;
    const std::string& name = names[timesShown - 1];
    *std::ranges::copy(name, record->lpstrFile).out = 0;
    return TRUE;
}

/// A dialog that leaves names as they are, as Windows' own does with those in quotes.
auto LiteralDialog(std::vector<std::string> answers) {
    names = std::move(answers);
    timesShown = 0;
    return ReplacedFunction(&::GetProcAddress, [](auto original, HMODULE library, LPCSTR name) {
        const auto literal = reinterpret_cast<void*>(&ShowLiteralDialog);
        const bool isByName = reinterpret_cast<ULONG_PTR>(name) > 0xFFFF;
        const std::string_view wanted = isByName ? name : "";
        const bool isDialog = wanted == "GetSaveFileNameW" || wanted == "GetOpenFileNameW";
        return isDialog ? reinterpret_cast<FARPROC>(literal) : original(library, name);
    });
}

int FocusOf(HWND box) {
    GUITHREADINFO gui{};
    gui.cbSize = sizeof gui;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(box, nullptr), &gui);
    return ::GetDlgCtrlID(gui.hwndFocus);
}

/// Waits for the question and presses a button of it.
void Answer(int button) {
    HWND box = nullptr;
    EXPECT_TRUE(Eventually([&] { return (box = ::FindWindowA("#32770", title)) != nullptr; }));
    EXPECT_TRUE(Eventually([&] { return TextOf(::GetDlgItem(box, 0xFFFF)) == question; }));
    EXPECT_BECOMES(FocusOf(box), IDNO);
    ::PostMessageA(box, WM_COMMAND, button, 0);
    EXPECT_TRUE(Eventually([&] { return !::IsWindow(box); }));
}

class SaveDialog : public SavedFolder {
protected:
    void SetUp() override {
        SavedFolder::SetUp();
        ForgetQuit();
        state.settings.standardFolder = savedFolder;
        ::GetCurrentDirectoryA(static_cast<DWORD>(folderBefore.size()), folderBefore.data());
    }
    void TearDown() override {
        ::SetCurrentDirectoryA(folderBefore.data());
        SavedFolder::TearDown();
    }
    std::string show(std::vector<int> buttons) {
        std::thread user([&] {
            for (const int button : buttons) Answer(button);
        });
        std::string path = dialogs.ShowSaveDialog();
        user.join();
        return path;
    }

    std::array<char, MAX_PATH> folderBefore{};
    TestForm owner;
    AppState state;
    FileDialogs dialogs{owner, state};
};

}  // namespace

TEST_F(SaveDialog, ANameThatGetsItsExtensionLaterIsAskedAboutAgain) {
    WriteContent("C:\\Saved\\Reds.txt", "precious");
    const auto literal = LiteralDialog({"C:\\Saved\\Reds"});
    EXPECT_EQ(show({IDYES}), "C:\\Saved\\Reds.txt");
    EXPECT_EQ(dialogs.chosenFolder(), "C:\\Saved\\");
}

TEST_F(SaveDialog, AfterNoItIsShownAgain) {
    WriteContent("C:\\Saved\\Reds.txt", "precious");
    const auto literal = LiteralDialog({"C:\\Saved\\Reds", "C:\\Saved\\Reds", "C:\\Saved\\Blues"});
    EXPECT_EQ(show({IDNO, IDNO}), "C:\\Saved\\Blues.txt");
    EXPECT_EQ(timesShown, 3U);
}

TEST_F(SaveDialog, AfterNoItMayBeCancelled) {
    WriteContent("C:\\Saved\\Reds.txt", "precious");
    const auto literal = LiteralDialog({"C:\\Saved\\Reds"});
    EXPECT_EQ(show({IDNO}), "");
    EXPECT_EQ(timesShown, 2U);
    EXPECT_EQ(dialogs.chosenFolder(), "");
    std::array<char, MAX_PATH> folder{};
    ::GetCurrentDirectoryA(static_cast<DWORD>(folder.size()), folder.data());
    EXPECT_EQ(folder, folderBefore);
}

TEST_F(SaveDialog, ANewNameIsNotAskedAbout) {
    const auto literal = LiteralDialog({"C:\\Saved\\Reds"});
    EXPECT_EQ(show({}), "C:\\Saved\\Reds.txt");
}

TEST_F(SaveDialog, AnExtensionThatTheDialogHasSeenIsNotAskedAboutAgain) {
    const auto literal = LiteralDialog({savedFile});
    EXPECT_EQ(show({}), savedFile);
}

TEST_F(SaveDialog, AnOpenedNameThatGetsItsExtensionLaterIsNotAskedAbout) {
    WriteContent("C:\\Saved\\Reds.txt", "precious");
    const auto literal = LiteralDialog({"C:\\Saved\\Reds"});
    EXPECT_EQ(dialogs.ShowOpenDialog(), "C:\\Saved\\Reds.txt");
}
