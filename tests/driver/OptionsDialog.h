// How does a test use the options dialog?
#pragma once

#include <string>

#include "resources/resource.h"
#include "tests/driver/Huevox.h"
#include "tests/driver/WindowText.h"

class OptionsDialog {
public:
    /// Presses F9 and waits until the dialog can be used.
    explicit OptionsDialog(const Huevox& huevox);
    void open() const;
    /// Waits until the dialog can be used, however it was opened.
    void waitUntilUsable() const;

    HWND window() const { return huevox.form("frmOptions"); }
    HWND control(int id) const { return ::GetDlgItem(window(), id); }
    std::string text(int id) const { return TextOf(control(id)); }
    bool isOn(int option) const { return ::SendMessageA(control(option), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    /// The id of the control that has the focus.
    int focused() const { return huevox.focused(); }
    /// The selected row of the list.
    int format() const;
    std::string example() const { return text(IDC_lblExample); }
    std::string folder() const { return text(IDC_lblSelectedStandardFolder); }

    /// Clicks a row of the list and waits until it is selected.
    void choose(int format) const;
    /// Clicks an option and waits until it is on.
    void turnOn(int option) const;
    /// Clicks OK or Cancel and waits for the main window.
    void close(int button) const;
    /// Waits until the dialog is gone and the main window takes keys again.
    void waitForReturn() const;

    /// Opens the folder picker by its access key and waits until it can be used.
    [[nodiscard]] HWND openPicker() const;
    /// Presses a key of the picker's, Enter or Escape, and waits until the dialog is back.
    void leavePicker(HWND picker, WORD key) const;

private:
    const Huevox& huevox;
};
