// The main window's template with stock controls in it and no program behind them: what Windows alone takes
// for such a window.
#include <array>

#include "resources/resource.h"
#include "toolkit/forms/FormWindow.h"
#include "toolkit/platform/Fonts.h"
#include "toolkit/platform/Platform.h"

namespace {

LRESULT CALLBACK StockProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DESTROY) return ::DefWindowProcW(window, message, wParam, lParam);
    ::PostQuitMessage(0);
    return 0;
}

/// Where the program has a control of its own: a rectangle that is filled.
TemplateItem Stock(TemplateItem item) {
    WNDCLASSEXW known{};
    known.cbSize = sizeof known;
    const auto* name = reinterpret_cast<const wchar_t*>(item.className.c_str());
    if (::GetClassInfoExW(::GetModuleHandleW(nullptr), name, &known)) return item;
    item.className = u"Static";
    item.style |= SS_GRAYRECT;
    return item;
}

/// As many as the main window's, with Windows' own pictures.
void FillToolBar(HWND bar) {
    constexpr std::array<int, 14> pictures = {
        STD_FILENEW, STD_FILEOPEN, STD_FIND,    STD_FILESAVE,   -1, STD_COPY, STD_PASTE,
        STD_FIND,    -1,           STD_REPLACE, STD_PROPERTIES, -1, STD_HELP, STD_PRINTPRE};
    std::array<TBBUTTON, pictures.size()> buttons{};
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const bool isGap = pictures[i] < 0;
        buttons[i].iBitmap = isGap ? 0 : pictures[i];
        buttons[i].idCommand = isGap ? 0 : static_cast<int>(i) + 1;
        buttons[i].fsState = TBSTATE_ENABLED;
        buttons[i].fsStyle = isGap ? BTNS_SEP : BTNS_BUTTON;
    }
    const TBADDBITMAP windowsOwn = {HINST_COMMCTRL, IDB_STD_SMALL_COLOR};
    ::SendMessageW(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    ::SendMessageW(bar, TB_ADDBITMAP, 0, reinterpret_cast<LPARAM>(&windowsOwn));
    ::SendMessageW(bar, TB_ADDBUTTONSW, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
}

void FillList(HWND list) {
    constexpr int rows = 12;
    for (int row = 0; row < rows; ++row)
        ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"A row of text"));
}

void AddControls(HWND window, const DialogTemplate& dialog) {
    for (const TemplateItem& item : dialog.items) {
        const RECT place = {item.x, item.y, item.x + item.width, item.y + item.height};
        const HWND control =
            CreateFormControl(window, Stock(item), place, MessageFont(USER_DEFAULT_SCREEN_DPI));
        if (item.id == IDC_tbrTools) FillToolBar(control);
        if (item.id == IDC_lstAutocopy) FillList(control);
    }
}

}  // namespace

int WINAPI WinMain(HINSTANCE /*hInstance*/, HINSTANCE /*hPrevInstance*/, LPSTR /*lpCmdLine*/, int nShowCmd) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    const DialogTemplate dialog = LoadDialogTemplate("frmMain");
    const FrameStyle frame = {dialog.style, dialog.exStyle, !dialog.menu.empty()};
    const SIZE size = FrameSize(frame, dialog.width, dialog.height, USER_DEFAULT_SCREEN_DPI);
    const HWND window =
        CreateFormWindow("StockWindow", dialog, CenteredPlace(nullptr, size), nullptr, StockProc);
    AddControls(window, dialog);
    ::ShowWindow(window, nShowCmd);
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
