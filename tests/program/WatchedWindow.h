// What happens to a window in the meantime?
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/driver/WindowText.h"

/// Counts the paintings of a window and keeps the texts that are written on it, for as long as the value
/// lives. One at a time.
class WatchedWindow {
public:
    explicit WatchedWindow(HWND window, std::function<void()> afterFirstPaint = {})
        : window(window), afterFirstPaint(std::move(afterFirstPaint)) {
        watching = this;
        before = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Receive)));
    }
    WatchedWindow(const WatchedWindow&) = delete;
    WatchedWindow& operator=(const WatchedWindow&) = delete;
    ~WatchedWindow() { ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before)); }

    int paints = 0;
    std::vector<std::string> texts;

private:
    static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const LRESULT result = ::CallWindowProcW(watching->before, window, message, wParam, lParam);
        if (message == WM_SETTEXT) watching->texts.push_back(TextOf(window));
        if (message == WM_PAINT) watching->countPaint();
        return result;
    }
    void countPaint() {
        if (++paints == 1 && afterFirstPaint) afterFirstPaint();
    }

    inline static WatchedWindow* watching = nullptr;
    HWND window;
    std::function<void()> afterFirstPaint;
    WNDPROC before = nullptr;
};
