#include "bench/Openings.h"

#include <cstdlib>

#include "bench/ColorChange.h"
#include "bench/RunningProgram.h"
#include "tests/driver/Figures.h"

namespace {

constexpr const wchar_t* closerClass = L"DialogCloser";

/// A dialog that is about to open, and what became of it.
struct Closing {
    const char* form;
    double begun = NowInMilliseconds();
    double time = 0;
};

/// Its message comes as soon as the dialog runs messages.
LRESULT CALLBACK CloseDialog(HWND closer, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_APP) return ::DefWindowProcW(closer, message, wParam, lParam);
    auto& closing = *reinterpret_cast<Closing*>(lParam);
    const HWND dialog = ::FindWindowA(closing.form, nullptr);
    if (!dialog || !::IsWindowVisible(dialog)) return ::PostMessageW(closer, WM_APP, 0, lParam);
    PaintAll(dialog);
    closing.time = NowInMilliseconds() - closing.begun;
    return ::PostMessageW(dialog, WM_CLOSE, 0, 0);
}

HWND NewCloser() {
    WNDCLASSW closer{};
    closer.lpfnWndProc = CloseDialog;
    closer.lpszClassName = closerClass;
    ::RegisterClassW(&closer);
    return ::CreateWindowExW(0, closerClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
}

void Choose(HWND form, int id) {
    ::SendMessageW(form, WM_COMMAND, static_cast<WPARAM>(id),
                   reinterpret_cast<LPARAM>(::GetDlgItem(form, id)));
}

}  // namespace

double OpenAndCloseWindow(HWND form, const OpenedForm& opened) {
    const double begun = NowInMilliseconds();
    Choose(form, opened.id);
    const HWND window = ::FindWindowA(opened.form, nullptr);
    if (!window) std::abort();
    PaintAll(window);
    const double time = NowInMilliseconds() - begun;
    BringTips(window);
    PumpAll();
    ::SendMessageW(window, WM_CLOSE, 0, 0);
    PumpAll();
    return time;
}

double OpenAndCloseDialog(HWND form, const OpenedForm& opened) {
    static const HWND closer = NewCloser();
    Closing closing = {opened.form};
    ::PostMessageW(closer, WM_APP, 0, reinterpret_cast<LPARAM>(&closing));
    Choose(form, opened.id);
    PumpAll();
    if (closing.time == 0 || ::FindWindowA(opened.form, nullptr)) std::abort();
    return closing.time;
}
