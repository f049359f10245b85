// How does a test see that Notepad has opened a file?
#pragma once

#include <string>

#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

/// Notepad's window on a file, closed when the value ends.
class NotepadOn {
public:
    explicit NotepadOn(const std::string& name) {
        EXPECT_TRUE(Eventually([&] {
            window = ::FindWindowA("Notepad", nullptr);
            return window && TextOf(window).find(name) != std::string::npos;
        })) << name;
        if (window) title = TextOf(window);
    }
    NotepadOn(const NotepadOn&) = delete;
    NotepadOn& operator=(const NotepadOn&) = delete;
    ~NotepadOn() {
        ::PostMessageA(window, WM_CLOSE, 0, 0);
        EXPECT_TRUE(Eventually([&] { return !::IsWindow(window); }));
    }

    std::string title;

private:
    HWND window = nullptr;
};
