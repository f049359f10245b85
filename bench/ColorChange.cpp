#include "bench/ColorChange.h"

#include <string>

#include "resources/resource.h"

void PaintAll(HWND window) { ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }

void ChangeThroughProgram(HWND window, int value) {
    const HWND slider = ::GetDlgItem(window, IDC_hsbGreen);
    ::SendMessageA(window, WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, value), reinterpret_cast<LPARAM>(slider));
    PaintAll(window);
}

void ChangeThroughPlatform(HWND window, int value) {
    const std::string text = std::to_string(value);
    const HWND container = ::GetDlgItem(window, IDC_picSampleContainer);
    ::SetScrollPos(::GetDlgItem(window, IDC_hsbBlue), SB_CTL, value, TRUE);
    ::SetWindowTextA(::GetDlgItem(window, IDC_txtName + 5), text.c_str());
    ::SetWindowTextA(::GetDlgItem(window, IDC_lblClipboard), text.c_str());
    ::InvalidateRect(::GetDlgItem(container, IDC_picSample), nullptr, FALSE);
    ::InvalidateRect(::GetDlgItem(window, IDC_lblColorBar), nullptr, FALSE);
    PaintAll(window);
}
