#include "randomuser/Session.h"
#include "randomuser/Soon.h"
#include "tests/toolkit/WindowText.h"
#include "tests/ui/Input.h"

namespace {

/// Keeps the thread of a window from running.
class Stopped {
public:
    explicit Stopped(HWND window)
        : thread(::OpenThread(THREAD_ALL_ACCESS, FALSE, ::GetWindowThreadProcessId(window, nullptr))) {
        ::SuspendThread(thread);
        // Who asks for its registers waits until it does stand still.
        CONTEXT context{};
        context.ContextFlags = CONTEXT_CONTROL;
        ::GetThreadContext(thread, &context);
    }
    Stopped(const Stopped&) = delete;
    Stopped& operator=(const Stopped&) = delete;
    ~Stopped() {
        ::ResumeThread(thread);
        ::CloseHandle(thread);
    }

private:
    HANDLE thread;
};

/// The text on the clipboard, or nothing while it is open elsewhere. What is copied has no letters beyond
/// ASCII.
std::optional<std::string> TextWhenFree() {
    if (!::OpenClipboard(nullptr)) return std::nullopt;
    std::string narrow;
    const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
    if (const auto* text = data ? static_cast<const wchar_t*>(::GlobalLock(data)) : nullptr) {
        for (const wchar_t character : std::wstring_view(text)) narrow += static_cast<char>(character);
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return narrow;
}

}  // namespace

/// The program does not copy again when it finds the clipboard open elsewhere: it must not run while somebody
/// looks.
std::string Session::copiedText() const {
    std::optional<std::string> text;
    Soon(
        [&] {
            const Stopped stopped(program->eyes->main());
            text = TextWhenFree();
            return text.has_value();
        },
        patience);
    return text.value_or("");
}

/// Until the preview has been copied and the letters have followed.
std::string Session::settle() {
    constexpr DWORD longEnough = 1500;
    constexpr DWORD betweenLooks = 250;
    const std::string expected = model.look().preview;
    ULONGLONG nextLook = ::GetTickCount64() + longEnough;
    std::string seen;
    std::string others;
    MoveMouse({1, 1});
    const auto isCopied = [&] {
        const HWND holder = ::GetOpenClipboardWindow();
        if (holder && holder != program->eyes->main()) others = ", held meanwhile by " + ClassOf(holder);
        // A copy raises the number; it may have come before its step was over.
        const ULONGLONG now = ::GetTickCount64();
        const DWORD number = ::GetClipboardSequenceNumber();
        if (number == clipboardNumber && now < nextLook) return false;
        clipboardNumber = number;
        nextLook = now + betweenLooks;
        seen = copiedText();
        return seen == expected;
    };
    return Soon(isCopied, patience) ? "" : "clipboard: expected " + expected + ", seen " + seen + others;
}
