#include "toolkit/platform/Clipboard.h"

#include <cstring>
#include <string>

#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Text.h"

namespace {

class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) : isOpen(::OpenClipboard(owner) != FALSE) {}
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard() {
        if (isOpen) ::CloseClipboard();
    }
    explicit operator bool() const { return isOpen; }

private:
    bool isOpen;
};

void PutBytes(UINT format, const void* bytes, std::size_t size) {
    OwnedGlobal memory(::GlobalAlloc(GMEM_MOVEABLE, size));
    void* target = memory ? ::GlobalLock(memory.get()) : nullptr;
    if (!target) return;
    std::memcpy(target, bytes, size);
    ::GlobalUnlock(memory.get());
    if (::SetClipboardData(format, memory.get())) memory.release();
}

}  // namespace

void PutTextOnClipboard(HWND owner, std::string_view text) {
    // Windows would convert one into the other with the code page of the keyboard's language.
    const std::string bytes = Ansi(text);
    const std::wstring wide = Wide(text);
    const OpenedClipboard clipboard(owner);
    if (!clipboard) return;
    ::EmptyClipboard();
    PutBytes(CF_TEXT, bytes.c_str(), bytes.size() + 1);
    PutBytes(CF_UNICODETEXT, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

std::wstring TextOnClipboard(HWND reader) {
    const OpenedClipboard clipboard(reader);
    const HANDLE data = clipboard ? ::GetClipboardData(CF_UNICODETEXT) : nullptr;
    const auto* units = data ? static_cast<const wchar_t*>(::GlobalLock(data)) : nullptr;
    if (!units) return L"";
    // Another program has put it there, and may have left out the NUL.
    const std::wstring_view all(units, ::GlobalSize(data) / sizeof(wchar_t));
    std::wstring text(all.substr(0, all.find(L'\0')));
    ::GlobalUnlock(data);
    return text;
}
