// How does a test drive the running program?
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/Color.h"
#include "resources/resource.h"
#include "tests/driver/Pixel.h"
#include "toolkit/platform/Platform.h"

/// Huevox.exe in a process of its own, started by the constructor and ended, by force if need be, by the
/// destructor.
class Huevox {
public:
    /// Waits until the main window is on the screen and answers.
    explicit Huevox(WORD showCommand = SW_SHOWNORMAL);
    /// The same for a copy of the program.
    explicit Huevox(const std::string& program);
    /// Starts the program without waiting for its window.
    struct DoNotWait {};
    explicit Huevox(DoNotWait, WORD showCommand = SW_SHOWNORMAL);
    Huevox(DoNotWait, const std::string& program);
    Huevox(const Huevox&) = delete;
    Huevox& operator=(const Huevox&) = delete;
    ~Huevox();

    [[nodiscard]] bool waitForWindow();
    HWND window() const { return main; }
    /// The form of that name when it is on the screen, or nullptr, and how many there are.
    HWND form(const char* name) const;
    int formCount(const char* name) const;
    /// The control with that id, in whatever container it stands.
    HWND control(int id) const;
    HWND focus() const;
    /// The id of the control that has the focus.
    int focused() const { return ::GetDlgCtrlID(focus()); }

    bool isRunning() const;
    /// Ends the program without a chance to do anything more.
    void kill() const;
    /// The exit code, when the program ends in time; -1 when it does not.
    [[nodiscard]] int waitForEnd() const;
    /// STILL_ACTIVE while the program runs.
    int exitCode() const;

    /// The message box or dialog that is on the screen, or nullptr. waitForDialog waits for one.
    HWND dialog() const;
    [[nodiscard]] HWND waitForDialog() const;
    int dialogCount() const;

    std::string text(int id) const;
    std::string title() const;
    bool isEnabled(int id) const { return ::IsWindowEnabled(control(id)) != FALSE; }
    bool isChecked(int id) const { return send(id, BM_GETCHECK) == BST_CHECKED; }
    int listIndex() const;
    Color sliders() const;
    /// Colours on the screen, once everything has been painted.
    Color sample(int mark) const;
    Color barStep(int step) const;
    /// The left edge of the bar's step on the screen.
    POINT barStepPlace(int step) const;
    Color backColor(int id) const;
    bool isToolButtonEnabled(int command) const;
    /// The middle of a tool-bar button on the screen; of the main window's bar, or of any.
    POINT toolButton(int command) const { return toolButton(control(IDC_tbrTools), command); }
    POINT toolButton(HWND bar, int command) const;
    /// The text of the tool tip that is on the screen, "" when there is none.
    std::string toolTip() const;

    /// Clicks a control and waits until it has the focus.
    void focusByClick(int id) const;
    /// Clears a text box, which gets the focus, types text and waits until it stands there.
    void retype(int id, std::string_view text) const;
    /// Start and end of a text box's selection.
    std::pair<int, int> selection(int id) const;
    /// The middle of a slider's thumb on the screen, were the slider at value.
    POINT thumb(int slider, int value) const;
    /// Gives a slider the focus without moving it.
    void focusSlider(int id) const;
    /// Selects a mark by a click and waits until its sample is the enabled one.
    void selectMark(int mark) const;
    /// Clicks a row of the notation list and waits until it is selected.
    void chooseNotation(int index) const;

    LRESULT send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

private:
    void start(const std::string& program, WORD showCommand);
    void startInSight(const std::string& program, WORD showCommand);

    PROCESS_INFORMATION process{};
    HWND main = nullptr;
};
