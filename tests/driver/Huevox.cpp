#include "tests/driver/Huevox.h"

#include <filesystem>

#include "resources/resource.h"
#include "tests/driver/FindWindows.h"
#include "tests/driver/Input.h"
#include "tests/driver/StartProgram.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

namespace {

struct ChildSearch {
    int id;
    HWND found;
};

BOOL CALLBACK FindChild(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<ChildSearch*>(parameter);
    if (::GetDlgCtrlID(window) != search.id) return TRUE;
    search.found = window;
    return FALSE;
}

}  // namespace

Huevox::Huevox(WORD showCommand) { startInSight(HUEVOX_EXE, showCommand); }

Huevox::Huevox(const std::string& program) { startInSight(program, SW_SHOWNORMAL); }

Huevox::Huevox(DoNotWait, WORD showCommand) { start(HUEVOX_EXE, showCommand); }

Huevox::Huevox(DoNotWait, const std::string& program) { start(program, SW_SHOWNORMAL); }

void Huevox::startInSight(const std::string& program, WORD showCommand) {
    start(program, showCommand);
    if (!waitForWindow()) ADD_FAILURE() << "no window; the program's exit code is " << exitCode();
}

void Huevox::start(const std::string& program, WORD showCommand) {
    STARTUPINFOW startup{};
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = showCommand;
    // The program of the current folder: Windows would look for one beside the tests first.
    process = StartProgram('"' + Utf8(std::filesystem::absolute(Wide(program)).wstring()) + '"', startup);
}

Huevox::~Huevox() {
    if (isRunning()) {
        ::PostMessageA(main, WM_CLOSE, 0, 0);
        // It may ask whether to save what the test has changed, or be held by a dialog.
        EXPECT_TRUE(Eventually([&] { return !isRunning() || dialog() || !::IsWindowEnabled(main); }));
        kill();
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

bool Huevox::waitForWindow() {
    const bool isThere = Eventually([&] {
        return (main = FindVisible(process.dwProcessId, "frmMain").first) != nullptr || !isRunning();
    });
    ::WaitForInputIdle(process.hProcess, INFINITE);
    return isThere && main != nullptr;
}

HWND Huevox::control(int id) const {
    ChildSearch search{id, nullptr};
    ::EnumChildWindows(main, FindChild, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND Huevox::focus() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(main, nullptr), &info);
    return info.hwndFocus;
}

bool Huevox::isRunning() const { return ::WaitForSingleObject(process.hProcess, 0) == WAIT_TIMEOUT; }

void Huevox::kill() const {
    ::TerminateProcess(process.hProcess, 9);
    ::WaitForSingleObject(process.hProcess, INFINITE);
}

int Huevox::waitForEnd() const {
    return Eventually([&] { return !isRunning(); }) ? exitCode() : -1;
}

int Huevox::exitCode() const {
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    return static_cast<int>(code);
}

HWND Huevox::form(const char* name) const { return FindVisible(process.dwProcessId, name).first; }

int Huevox::formCount(const char* name) const { return FindVisible(process.dwProcessId, name).count; }

HWND Huevox::dialog() const { return FindVisible(process.dwProcessId, "#32770").first; }

HWND Huevox::waitForDialog() const {
    HWND found = nullptr;
    EXPECT_TRUE(Eventually([&] { return (found = dialog()) != nullptr; }));
    return found;
}

int Huevox::dialogCount() const { return FindVisible(process.dwProcessId, "#32770").count; }

LRESULT Huevox::send(int id, UINT message, WPARAM wParam, LPARAM lParam) const {
    return AnswerOf(control(id), message, wParam, lParam);
}

std::string Huevox::text(int id) const { return TextOf(control(id)); }

std::string Huevox::title() const { return TextOf(main); }

int Huevox::listIndex() const { return static_cast<int>(send(IDC_lstAutocopy, LB_GETCURSEL)); }

Color Huevox::sliders() const {
    const auto value = [&](int id) { return static_cast<int>(send(id, SBM_GETPOS)); };
    return ColorOf(value(IDC_hsbRed), value(IDC_hsbGreen), value(IDC_hsbBlue));
}

Color Huevox::sample(int mark) const { return PaintedPixel(main, CenterOf(control(IDC_picSample + mark))); }

POINT Huevox::barStepPlace(int step) const {
    // A neighbour may cover a step's last pixel, but never its second.
    const int left = ::MulDiv((step * 731 + 127) / 255 + 1, static_cast<int>(::GetDpiForSystem()),
                              USER_DEFAULT_SCREEN_DPI);
    return OnScreen(control(IDC_lblColorBar), {left, 10});
}

Color Huevox::barStep(int step) const { return PaintedPixel(main, barStepPlace(step)); }

Color Huevox::backColor(int id) const {
    RECT area{};
    ::GetClientRect(control(id), &area);
    return PaintedPixel(main, OnScreen(control(id), {area.right - 3, 2}));
}

bool Huevox::isToolButtonEnabled(int command) const {
    return send(IDC_tbrTools, TB_ISBUTTONENABLED, command) != 0;
}

POINT Huevox::toolButton(HWND bar, int command) const {
    // The bar writes the answer into memory of its own process.
    void* remote = ::VirtualAllocEx(process.hProcess, nullptr, sizeof(RECT), MEM_COMMIT, PAGE_READWRITE);
    ::SendMessageA(bar, TB_GETRECT, command, reinterpret_cast<LPARAM>(remote));
    RECT area{};
    ::ReadProcessMemory(process.hProcess, remote, &area, sizeof area, nullptr);
    ::VirtualFreeEx(process.hProcess, remote, 0, MEM_RELEASE);
    return OnScreen(bar, {(area.left + area.right) / 2, (area.top + area.bottom) / 2});
}

std::string Huevox::toolTip() const {
    const HWND tip = FindVisible(process.dwProcessId, TOOLTIPS_CLASSA).first;
    return tip ? TextOf(tip) : "";
}

void Huevox::focusByClick(int id) const {
    Click(control(id));
    EXPECT_TRUE(Eventually([&] { return focus() == control(id); })) << id;
}

void Huevox::retype(int id, std::string_view text) const {
    focusByClick(id);
    Press(VK_END);
    Press(VK_HOME, {VK_SHIFT});
    Press(VK_DELETE);
    EXPECT_BECOMES(this->text(id), "");
    Type(text);
    EXPECT_BECOMES(this->text(id).size(), text.size());
}

std::pair<int, int> Huevox::selection(int id) const {
    const LRESULT both = send(id, EM_GETSEL);
    return {LOWORD(both), HIWORD(both)};
}

POINT Huevox::thumb(int slider, int value) const {
    const HWND bar = control(slider);
    RECT area{};
    ::GetClientRect(bar, &area);
    const int arrow = ::GetSystemMetrics(SM_CXHSCROLL);
    const int way = static_cast<int>(area.right) - 3 * arrow;  // the thumb is as long as an arrow
    return OnScreen(bar, {arrow + value * way / 255 + arrow / 2, area.bottom / 2});
}

void Huevox::focusSlider(int id) const {
    Click(thumb(id, static_cast<int>(send(id, SBM_GETPOS))));
    EXPECT_TRUE(Eventually([&] { return focus() == control(id); })) << id;
}

void Huevox::selectMark(int mark) const {
    Click(control(IDC_optColor + mark));
    EXPECT_BECOMES(isEnabled(IDC_picSample + mark), true);
}

void Huevox::chooseNotation(int index) const {
    const int rowHeight = static_cast<int>(send(IDC_lstAutocopy, LB_GETITEMHEIGHT));
    Click(OnScreen(control(IDC_lstAutocopy), {20, index * rowHeight + rowHeight / 2}));
    EXPECT_BECOMES(listIndex(), index);
}
