#include "randomuser/Session.h"
#include "randomuser/Soon.h"
#include "tests/ui/Input.h"
#include "tests/ui/UiTest.h"

namespace {

/// What is copied has no letters beyond ASCII.
std::string Narrow(const std::wstring& text) {
    std::string narrow;
    for (const wchar_t character : text) narrow += static_cast<char>(character);
    return narrow;
}

}  // namespace

/// Who has the clipboard open at the very moment of a copy, the platform's own window of it for instance,
/// keeps the program from it until the next change: choosing the same notation once more.
std::string Session::settleSoon() {
    std::string found = settle();
    const Action sameNotation = {Kind::notation, 0, model.look().notation};
    if (found.empty() || sameNotation.value < 0 || !model.isPossible(sameNotation)) return found;
    std::printf("    step %d, settle: %s; done once more\n", steps, found.c_str());
    ++figures.repeats;
    const Model before = model;
    model.play(sameNotation);
    program->hands->play(sameNotation, before);
    model.play({Kind::settle});
    return settle();
}

/// Until the preview has been copied and the letters have followed.
std::string Session::settle() {
    constexpr DWORD longEnough = 1500;
    constexpr DWORD betweenLooks = 250;
    const std::string expected = model.look().preview;
    const ULONGLONG begin = ::GetTickCount64();
    ULONGLONG nextLook = begin + longEnough;
    std::string seen;
    MoveMouse({1, 1});
    const bool isCopied = Soon([&] {
        // A copy may have come before its step was over. Who looks too often keeps the program from copying.
        const ULONGLONG now = ::GetTickCount64();
        const DWORD number = ::GetClipboardSequenceNumber();
        if (number == clipboardNumber && now < nextLook) return false;
        clipboardNumber = number;
        nextLook = now + betweenLooks;
        seen = Narrow(ClipboardUnicodeText());
        return seen == expected;
    });
    return isCopied ? "" : "clipboard: expected " + expected + ", seen " + seen;
}
