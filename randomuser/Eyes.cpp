#include "randomuser/Eyes.h"

#include "mainwindow/panels/ColorRamp.h"
#include "randomuser/OtherProgram.h"
#include "resources/resource.h"
#include "tests/driver/Figures.h"
#include "tests/driver/FindWindows.h"
#include "tests/driver/Input.h"
#include "tests/driver/LastKeys.h"
#include "tests/driver/WindowText.h"
#include "toolkit/platform/Text.h"

namespace {

/// Milliseconds without an answer: so many that the busiest machine gives the program time for one.
constexpr UINT hang = 60'000;

constexpr std::array pickerNames = {"frmWebsafe", "frmFailsafe", "frmJavaScript", "frmContrast"};

BOOL CALLBACK Remember(HWND window, LPARAM parameter) {
    auto& controls = *reinterpret_cast<std::map<int, HWND>*>(parameter);
    controls.emplace(::GetDlgCtrlID(window), window);
    return TRUE;
}

GUITHREADINFO ThreadInfo(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info);
    return info;
}

}  // namespace

Eyes::Eyes(HWND main, HANDLE process) : form(main), process(process) {
    ::EnumChildWindows(main, Remember, reinterpret_cast<LPARAM>(&controls));
}

LRESULT Eyes::ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!isAnswering) return 0;
    const double before = NowInMilliseconds();
    DWORD_PTR result = 0;
    const LRESULT isAnswered =
        ::SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, hang, &result);
    const double time = NowInMilliseconds() - before;
    slowest = std::max(slowest, time);
    if (!isAnswered && time >= hang) isAnswering = false;
    return static_cast<LRESULT>(result);
}

std::string Eyes::text(HWND window) {
    std::array<wchar_t, 512> buffer{};
    ask(window, WM_GETTEXT, buffer.size(), reinterpret_cast<LPARAM>(buffer.data()));
    return Utf8(buffer.data());
}

bool Eyes::isRunning() const { return ::WaitForSingleObject(process, 0) == WAIT_TIMEOUT; }

HWND Eyes::focus() const { return ThreadInfo(form).hwndFocus; }
HWND Eyes::capture() const { return ThreadInfo(form).hwndCapture; }
bool Eyes::isInMenu() const { return (ThreadInfo(form).flags & GUI_INMENUMODE) != 0; }

bool Eyes::hasKeys(HWND window) {
    const GUITHREADINFO info = ThreadInfo(window);
    const bool hasFocus = window && (info.hwndFocus == window || ::IsChild(window, info.hwndFocus));
    return hasFocus && ::GetForegroundWindow() == window && (info.flags & GUI_INMENUMODE) == 0;
}

std::string Eyes::situation() const {
    constexpr int firstKey = VK_BACK;  // before it stand the mouse's buttons
    constexpr int lastKey = 0xFE;
    std::string held;
    for (int key = firstKey; key <= lastKey; ++key) {
        if (::GetAsyncKeyState(key) < 0) held += ' ' + std::to_string(key);
    }
    const auto idOf = [](HWND window) { return window ? std::to_string(::GetDlgCtrlID(window)) : "none"; };
    POINT pointer{};
    ::GetCursorPos(&pointer);
    const HWND under = ::WindowFromPoint(pointer);
    return "in front " + ClassOf(::GetForegroundWindow()) + ", pointer at " + std::to_string(pointer.x) +
           ' ' + std::to_string(pointer.y) + " over " + ClassOf(under) + ' ' + idOf(under) + ", focus " +
           idOf(focus()) + ", capture " + idOf(capture()) + (isInMenu() ? ", in a menu" : "") +
           ", keys held:" + held + ", last keys: " + LastKeys();
}

HWND Eyes::box() const {
    // One that has another over it is disabled.
    const auto isOpen = [](HWND window) { return ::IsWindowVisible(window) && ::IsWindowEnabled(window); };
    for (const char* dialog : {"frmOptions", "frmCustomFormat", "frmAbout"}) {
        const HWND window = ::FindWindowA(dialog, nullptr);
        if (window && isOpen(window)) return window;
    }
    for (const HWND window : WindowsFromTheTop()) {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        if (owner == ::GetProcessId(process) && isOpen(window) && ClassOf(window) == "#32770") return window;
    }
    return nullptr;
}

HWND Eyes::nameField(HWND dialog) {
    constexpr int nameId = 1148;
    // A box for several lines and a box for one line in it, all of one number.
    HWND field = ::GetDlgItem(dialog, nameId);
    while (const HWND inner = ::GetDlgItem(field, nameId)) field = inner;
    return field;
}

HWND Eyes::picker(int index) const { return ::FindWindowA(pickerNames.at(index), nullptr); }

Front Eyes::frontWindow() const {
    const HWND front = ::GetForegroundWindow();
    if (front == form) return Front::main;
    for (int index = 0; index < 4; ++index) {
        if (front && front == picker(index)) return static_cast<Front>(index);
    }
    const std::string name = front ? ClassOf(front) : "";
    return name == OtherProgram::className ? Front::other : Front::none;
}

HWND Eyes::windowOf(Front front) const {
    switch (front) {
        case Front::main: return form;
        case Front::other: return ::FindWindowA(OtherProgram::className, nullptr);
        case Front::none: return nullptr;
        default: return picker(static_cast<int>(front));
    }
}

bool Eyes::isTopmost(HWND window) { return (::GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

POINT Eyes::emptyPlace() const { return OnScreen(form, {3, 150}); }

POINT Eyes::barStep(int step) const {
    constexpr int second = 1;  // a neighbour may cover a step's last pixel
    return OnScreen(control(IDC_lblColorBar), {BarStepLeft(step) + second, barStepHeight / 2});
}
