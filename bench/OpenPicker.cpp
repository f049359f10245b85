// How long does a palette window take to open, compared with an empty window of its size?
#include <array>
#include <string>
#include <vector>

#include "bench/Benches.h"
#include "bench/RunningProgram.h"
#include "resources/resource.h"
#include "tests/driver/WindowText.h"
#include "toolkit/controls/IconPixels.h"

namespace {

constexpr const char* emptyClass = "EmptyWindow";

struct Picker {
    const char* name;
    const char* window;
    int button;
};
constexpr std::array<Picker, 3> pickers = {{{"picker.websafe.", "frmWebsafe", IDC_cmdWebsafe},
                                            {"picker.failsafe.", "frmFailsafe", IDC_cmdFailsafe},
                                            {"picker.javascript.", "frmJavaScript", IDC_cmdJavaScript}}};

struct Child {
    std::string className;
    RECT place;
};

/// What can be seen of a window from outside.
struct Shape {
    RECT place{};
    std::vector<Child> children;
    int windows = 0;  ///< with tool tip and everything in it
};

void RegisterEmptyClass() {
    WNDCLASSA empty{};
    empty.lpfnWndProc = ::DefWindowProcA;
    empty.hInstance = ::GetModuleHandleA(nullptr);
    empty.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    empty.lpszClassName = emptyClass;
    ::RegisterClassA(&empty);
}

BOOL CALLBACK AddChild(HWND child, LPARAM parameter) {
    RECT place{};
    ::GetWindowRect(child, &place);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&place), 2);
    reinterpret_cast<std::vector<Child>*>(parameter)->push_back({ClassOf(child), place});
    return TRUE;
}

Shape ShapeOf(HWND window) {
    Shape shape;
    ::GetWindowRect(window, &shape.place);
    ::EnumChildWindows(window, AddChild, reinterpret_cast<LPARAM>(&shape.children));
    BringTips(window);
    shape.windows = 1 + static_cast<int>(shape.children.size());
    HWND tip = nullptr;
    while ((tip = ::FindWindowExA(nullptr, tip, TOOLTIPS_CLASSA, nullptr)) != nullptr) {
        if (::GetWindow(tip, GW_OWNER) == window) ++shape.windows;
    }
    return shape;
}

double TimeOfPicker(HWND form, const Picker& picker, Shape& shape) {
    const HWND button = ::GetDlgItem(form, picker.button);
    const double before = NowInMilliseconds();
    // Starts at the button's click: painting the pressed button is not part of the window.
    ::SendMessageA(form, WM_COMMAND, MAKEWPARAM(picker.button, BN_CLICKED), reinterpret_cast<LPARAM>(button));
    double time = NowInMilliseconds() - before;
    // Nor is looking for it.
    const HWND window = ::FindWindowA(picker.window, nullptr);
    const double found = NowInMilliseconds();
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    time += NowInMilliseconds() - found;
    shape = ShapeOf(window);
    PumpAll();
    ::SendMessageA(window, WM_CLOSE, 0, 0);
    PumpAll();
    return time;
}

/// Two buttons with pictures, the first one pressed, as in the window of the JavaScript colours.
void FillStockToolBar(HWND bar, HIMAGELIST images) {
    std::array<TBBUTTON, 2> buttons{};
    for (int index = 0; TBBUTTON & button : buttons) {
        button.iBitmap = index;
        button.idCommand = ++index;
        button.fsState = index == 1 ? TBSTATE_ENABLED | TBSTATE_CHECKED : TBSTATE_ENABLED;
        button.fsStyle = BTNS_CHECKGROUP;
    }
    ::SendMessageA(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    ::SendMessageA(bar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
    ::SendMessageA(bar, TB_ADDBUTTONSA, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
}

/// The Windows control of that kind if there is one, else the simplest.
void AddStockControl(HWND window, const Child& child, HIMAGELIST images) {
    const bool isToolBar = child.className == TOOLBARCLASSNAMEA;
    const DWORD style = isToolBar ? TBSTYLE_FLAT | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN : 0;
    const HWND control =
        ::CreateWindowExA(0, isToolBar ? TOOLBARCLASSNAMEA : "Static", "", WS_CHILD | WS_VISIBLE | style,
                          child.place.left, child.place.top, child.place.right - child.place.left,
                          child.place.bottom - child.place.top, window, nullptr, nullptr, nullptr);
    if (isToolBar) FillStockToolBar(control, images);
}

double TimeOfStockWindow(const RECT& place, const std::vector<Child>& children) {
    constexpr int size = 16;
    static const OwnedImages images = ImagesFromIcons(std::array{IDI_Back, IDI_Forward}, size, size);
    const double before = NowInMilliseconds();
    const HWND window = ::CreateWindowExA(WS_EX_TOOLWINDOW, emptyClass, "Empty", WS_CAPTION | WS_SYSMENU,
                                          place.left, place.top, place.right - place.left,
                                          place.bottom - place.top, nullptr, nullptr, nullptr, nullptr);
    for (const Child& child : children) AddStockControl(window, child, images.get());
    ::ShowWindow(window, SW_SHOWNORMAL);
    ::SetForegroundWindow(window);
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    const double time = NowInMilliseconds() - before;
    PumpAll();
    ::DestroyWindow(window);
    PumpAll();
    return time;
}

void TellPicker(HWND form, const Picker& picker, int rounds) {
    std::vector<double> opened;
    std::vector<double> empty;
    std::vector<double> ratios;
    std::vector<double> stockRatios;
    Shape shape;
    for (int round = 0; round < rounds; ++round) {
        opened.push_back(TimeOfPicker(form, picker, shape));
        empty.push_back(TimeOfStockWindow(shape.place, {}));
        ratios.push_back(opened.back() / empty.back());
        stockRatios.push_back(TimeOfStockWindow(shape.place, shape.children) / empty.back());
    }
    const std::string name = picker.name;
    Tell(name + "ms", Median(opened));
    Tell(name + "empty.ms", Median(empty));
    Tell(name + "ratio", Median(ratios));
    Tell(name + "stock.ratio", Median(stockRatios));
    Tell(name + "windows", shape.windows);
}

}  // namespace

void BenchOpenPicker(const Effort& effort) {
    const int rounds = effort.of(40);
    RegisterEmptyClass();
    const RunningProgram running;
    Tell("picker.rounds", rounds);
    for (const Picker& picker : pickers) TellPicker(running.form(), picker, rounds);
}
