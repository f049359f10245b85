#include "tests/driver/Dialogs.h"

#include "resources/resource.h"
#include "tests/driver/Input.h"
#include "tests/driver/Pixel.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

namespace {

HWND IconOf(HWND box) {
    HWND child = nullptr;
    do {
        child = ::FindWindowExA(box, child, "Static", nullptr);
    } while (child && (::GetWindowLongA(child, GWL_STYLE) & SS_TYPEMASK) != SS_ICON);
    return child;
}

/// The icon on that ground, row by row.
std::vector<Color> PixelsOfIcon(LPCWSTR icon, int size, const Color& ground) {
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, size, size);
    const HGDIOBJ before = ::SelectObject(memory, bitmap);
    const HBRUSH brush = ::CreateSolidBrush(static_cast<COLORREF>(Pack(ground)));
    ::DrawIconEx(memory, 0, 0, ::LoadIconW(nullptr, icon), size, size, 0, brush, DI_NORMAL);
    std::vector<Color> pixels = PixelsIn(memory, {0, 0, size, size});
    ::SelectObject(memory, before);
    ::DeleteObject(brush);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return pixels;
}

}  // namespace

void Answer(HWND dialog, int button) {
    ASSERT_TRUE(::IsWindow(dialog)) << "nothing to answer";
    const HWND owner = ::GetWindow(dialog, GW_OWNER);
    const DWORD thread = ::GetWindowThreadProcessId(dialog, nullptr);
    ::PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, button)));
    EXPECT_TRUE(Eventually([&] { return !::IsWindow(dialog); }));
    // Keys that come before another window of the program is in front again go nowhere.
    if (owner) {
        EXPECT_TRUE(Eventually([&] { return !::IsWindow(owner) || TakesKeys(thread); }));
    }
}

void WaitForReturn(const Huevox& huevox) {
    EXPECT_TRUE(Eventually([&] {
        const bool isBack = ::GetForegroundWindow() == huevox.window() && huevox.focus() != nullptr;
        return isBack || huevox.dialog() || !huevox.isRunning();
    }));
}

HWND WaitForMessage(const Huevox& huevox, std::string_view text) {
    HWND box = nullptr;
    const bool isThere = Eventually([&] {
        box = huevox.dialog();
        return box && TextOf(box) == "Huevox";
    });
    EXPECT_TRUE(isThere) << "no message: " << text;
    if (!isThere) return nullptr;
    EXPECT_EQ(MessageOf(box), text);
    return box;
}

void CloseMessage(const Huevox& huevox, std::string_view text) {
    Answer(WaitForMessage(huevox, text), IDOK);
    WaitForReturn(huevox);
}

HWND BringRefusal(const Huevox& huevox) {
    huevox.retype(IDC_txtSetRed, "256");
    Press(VK_RETURN);
    return huevox.waitForDialog();
}

bool ShowsIcon(HWND box, LPCWSTR icon) {
    const RECT area = AreaOf(IconOf(box));
    const int size = static_cast<int>(area.right - area.left);
    const Color ground = Pixel({area.left - 2, area.top});
    return size > 0 && PixelsOf(area) == PixelsOfIcon(icon, size, ground);
}
