#include "tests/ui/DisplayFocus.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "toolkit/Platform.h"

namespace {

/// The display's name for the window in front, 0 for none.
unsigned long FrontOnDisplay() {
    const HANDLE name = ::GetPropA(::GetForegroundWindow(), "__wine_x11_whole_window");
    return static_cast<unsigned long>(reinterpret_cast<UINT_PTR>(name));
}

/// The window that the window manager has given the focus to, of a file with a line for each so far, such as
/// "_NET_ACTIVE_WINDOW(WINDOW): window id # 0x1c00003".
unsigned long ActiveOnDisplay(const char* path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path, "rb"), &std::fclose);
    if (!file) return 0;
    std::array<char, 128> bytes{};
    std::fseek(file.get(), -static_cast<long>(bytes.size()), SEEK_END);
    const std::string end(bytes.data(), std::fread(bytes.data(), 1, bytes.size(), file.get()));
    const std::size_t number = end.rfind("# 0x");
    return number == std::string::npos ? 0 : std::strtoul(end.c_str() + number + 2, nullptr, 16);
}

}  // namespace

bool HasDisplayFocus() {
    static const char* const path = std::getenv("HUEVOX_ACTIVE_WINDOW");
    const unsigned long front = FrontOnDisplay();
    return path && front != 0 && front == ActiveOnDisplay(path);
}
