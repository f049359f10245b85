#include "toolkit/forms/FormWindow.h"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "toolkit/platform/Text.h"
#include "toolkit/platform/WindowPlace.h"

namespace {

constexpr int programIcon = 1;  // the lowest number, which Windows takes as the program's icon too

HINSTANCE Instance() { return ::GetModuleHandleW(nullptr); }

const wchar_t* Units(const std::u16string& text) { return reinterpret_cast<const wchar_t*>(text.c_str()); }

void RegisterFormClass(const wchar_t* name, DWORD exStyle, WNDPROC proc) {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    if (::GetClassInfoExW(Instance(), name, &windowClass)) return;  // the form has been loaded before
    windowClass.lpfnWndProc = proc;
    windowClass.cbWndExtra = DLGWINDOWEXTRA;
    windowClass.hInstance = Instance();
    // A tool window shows its icon nowhere.
    const bool hasPicture = !(exStyle & WS_EX_TOOLWINDOW);
    windowClass.hIcon = hasPicture ? ::LoadIconW(Instance(), MAKEINTRESOURCEW(programIcon)) : nullptr;
    windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = name;
    ::RegisterClassExW(&windowClass);
}

}  // namespace

DialogTemplate LoadDialogTemplate(const char* name) {
    const HRSRC found = ::FindResourceW(Instance(), Wide(name).c_str(), RT_DIALOG);
    const HGLOBAL loaded = found ? ::LoadResource(Instance(), found) : nullptr;
    if (!loaded) throw std::runtime_error("no dialog template of that name");
    const auto* bytes = static_cast<const std::byte*>(::LockResource(loaded));
    return ParseDialogTemplate({bytes, ::SizeofResource(Instance(), found)});
}

// Not by the dialog manager, which would choose another size and place.
HWND CreateFormWindow(const char* name, const DialogTemplate& layout, const Area& place, HWND owner,
                      WNDPROC proc) {
    const std::wstring className = Wide(name);
    RegisterFormClass(className.c_str(), layout.exStyle, proc);
    Owned<HMENU, &::DestroyMenu> menu(layout.menu.empty() ? nullptr
                                                          : ::LoadMenuW(Instance(), Units(layout.menu)));
    const HWND window =
        ::CreateWindowExW(layout.exStyle, className.c_str(), Units(layout.caption), layout.style, place.left,
                          place.top, place.width(), place.height(), owner, menu.get(), Instance(), nullptr);
    if (window) menu.release();  // the window owns it now
    return window;
}

SIZE FrameSize(const FrameStyle& frame, int clientWidth, int clientHeight, int dpi) {
    RECT area = {0, 0, clientWidth, clientHeight};
    ::AdjustWindowRectExForDpi(&area, frame.style, frame.hasMenu, frame.exStyle, dpi);
    return {area.right - area.left, area.bottom - area.top};
}

Area CenteredPlace(HWND owner, const SIZE& frame) {
    const int width = frame.cx;
    const int height = frame.cy;
    const Area work = WorkAreaAt(owner);
    const Area middle = owner ? PlaceOf(owner) : work;
    const auto start = [](int from, int to, int size) { return from + (to - from - size) / 2; };
    const auto limited = [](int value, int low, int high) { return std::max(low, std::min(value, high)); };
    const int left = limited(start(middle.left, middle.right, width), work.left, work.right - width);
    const int top = limited(start(middle.top, middle.bottom, height), work.top, work.bottom - height);
    return {left, top, left + width, top + height};
}

void FocusFirst(HWND form) {
    if (::GetActiveWindow() != form || ::IsChild(form, ::GetFocus())) return;
    if (const HWND first = ::GetNextDlgTabItem(form, nullptr, FALSE)) ::SetFocus(first);
}

HWND CreateFormControl(HWND parent, const TemplateItem& item, const RECT& place, HFONT font) {
    const HWND control = ::CreateWindowExW(
        item.exStyle | WS_EX_NOPARENTNOTIFY, Units(item.className), Units(item.text), item.style | WS_CHILD,
        place.left, place.top, place.right - place.left, place.bottom - place.top, parent,
        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(item.id)), Instance(), nullptr);
    ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return control;
}
