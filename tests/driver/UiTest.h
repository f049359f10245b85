// What do the tests of the running program share?
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "resources/resource.h"
#include "tests/driver/Dialogs.h"
#include "tests/driver/Huevox.h"
#include "tests/driver/Input.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

/// Every test begins without stored settings and with an empty clipboard.
class UiTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

private:
    ULONGLONG waitedBefore = 0;
};

/// The text on the system clipboard, "" when there is none.
std::string ClipboardText();
std::wstring ClipboardUnicodeText();
/// Puts text on the clipboard as another program does.
void CopyElsewhere(std::string_view text);

/// The clipboard is held open, as by a program that hangs, for as long as the value lives.
class ClipboardHeld {
public:
    ClipboardHeld();
    ClipboardHeld(const ClipboardHeld&) = delete;
    ClipboardHeld& operator=(const ClipboardHeld&) = delete;
    ~ClipboardHeld();
};

inline constexpr const char* settingsKey = "Software\\Quorvane\\Huevox 2004";

/// The message when settings cannot be used, and all five of them as they are stored then.
inline constexpr const char* unusableSettings =
    "Unusable settings found in Registry. Default settings restored.";
void ExpectDefaultsStored();

void StoreText(const char* valueName, std::string_view text);
std::string StoredText(const char* valueName);
bool HasStoredSettings();
/// From now on the key of the settings can neither be opened nor made.
void DenyTheSettingsKey();

/// Types all three values and applies them, in decimal mode.
void SetColor(const Huevox& huevox, const Color& color);
/// Another program comes to the front and ends; a window that was behind it is in front again.
void VisitAnotherProgram(HWND window);
/// Closes the main window, and expects the program to end without a question.
void Close(const Huevox& huevox);
/// Clicks the box for JavaScript names and waits until the list is disabled or enabled.
void CheckNames(const Huevox& huevox, bool isChecked);

/// The colour of a name box, and of one whose name may not fit any more.
inline constexpr Color white = ColorOf(255, 255, 255);
inline constexpr Color highlight = ColorOf(255, 250, 205);

constexpr int Name(int mark) { return IDC_txtName + mark; }
constexpr int Option(int mark) { return IDC_optColor + mark; }
constexpr int Property(int mark) { return IDC_lblColorProp + mark; }
