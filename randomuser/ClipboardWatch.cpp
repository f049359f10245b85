#include "randomuser/ClipboardWatch.h"

#include <optional>

#include "randomuser/Soon.h"
#include "tests/driver/Input.h"
#include "tests/driver/UiTest.h"
#include "tests/driver/WindowText.h"
#include "toolkit/platform/Text.h"

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

/// The text on the clipboard, or nothing while it is open elsewhere.
std::optional<std::string> TextWhenFree() {
    if (!::OpenClipboard(nullptr)) return std::nullopt;
    std::string text;
    const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
    if (const auto* units = data ? static_cast<const wchar_t*>(::GlobalLock(data)) : nullptr) {
        text = Utf8(units);
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return text;
}

/// The same while a copy may be due. The program does not copy again when it finds the clipboard open
/// elsewhere, so it must not run while somebody looks. Windows asks the last one who has copied, and waits
/// five seconds for that.
std::optional<std::string> TextMeanwhile(HWND window) {
    const Stopped stopped(window);
    return TextWhenFree();
}

}  // namespace

std::string ClipboardWatch::difference(const ClipboardFact& before, const ClipboardFact& now) {
    const DWORD number = ::GetClipboardSequenceNumber();
    const bool wasKnown = before.state == ClipboardFact::State::known;
    const bool isKnown = now.state == ClipboardFact::State::known;
    const bool isKept = wasKnown && isKnown && now.text == before.text;
    const bool isWritten = isKept && !now.isHeld && number != lastNumber;
    const std::string seen = isWritten ? FromAnsi(ClipboardText()) : now.text;
    if (seen != now.text) return "clipboard: expected " + now.text + ", seen " + seen;
    lastNumber = number;
    return "";
}

std::string ClipboardWatch::settle(HWND program, const std::string& expected, DWORD patience) {
    constexpr DWORD longEnough = 1500;
    constexpr DWORD betweenLooks = 10'000;
    ULONGLONG nextLook = ::GetTickCount64() + longEnough;
    std::optional<std::string> seen;
    std::string others;
    MoveMouse({1, 1});
    const auto isCopied = [&] {
        const HWND holder = ::GetOpenClipboardWindow();
        if (holder && holder != program) others = ", held meanwhile by " + ClassOf(holder);
        // A copy raises the number; it may have come before its step was over.
        const ULONGLONG now = ::GetTickCount64();
        const DWORD number = ::GetClipboardSequenceNumber();
        const bool hasCopied = number != lastNumber;
        if (!hasCopied && now < nextLook) return false;
        nextLook = now + betweenLooks;
        seen = hasCopied ? TextWhenFree() : TextMeanwhile(program);
        if (seen) lastNumber = number;
        return seen == expected;
    };
    if (Soon(isCopied, patience)) return "";
    return "clipboard: expected " + expected + ", seen " + seen.value_or("nothing") + others;
}
