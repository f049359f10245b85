#include "toolkit/platform/Clipboard.h"

#include <cstring>
#include <string>

#include "toolkit/platform/Handles.h"

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

std::wstring Widened(std::string_view text) {
    const char* const first = text.data();
    const int size = static_cast<int>(text.size());
    std::wstring wide(::MultiByteToWideChar(CP_ACP, 0, first, size, nullptr, 0), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, first, size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

}  // namespace

void PutTextOnClipboard(HWND owner, std::string_view text) {
    const std::string bytes(text);
    // Windows would make the Unicode text with the code page of the keyboard's language.
    const std::wstring wide = Widened(text);
    const OpenedClipboard clipboard(owner);
    if (!clipboard) return;
    ::EmptyClipboard();
    PutBytes(CF_TEXT, bytes.c_str(), bytes.size() + 1);
    PutBytes(CF_UNICODETEXT, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}
