// How long does opening a file take that is nearly empty, or as large as a disk of yesterday?
#include <shlobj.h>

#include <array>
#include <cstdlib>
#include <cstring>

#include "bench/Growth.h"
#include "palette/FirstLines.h"
#include "palette/PaletteFile.h"
#include "palette/TextFile.h"

namespace {

constexpr const wchar_t* path = L"growth.txt";
constexpr const char* line = "a line that no reader looks at\r\n";

/// A palette, as much of it as there is room for. Of the rest of the file only the beginning is text, in
/// lines or not; what follows is a hole, which takes no place on the disk and reads as NULs.
std::string Beginning(long long size, bool isInLines) {
    constexpr std::size_t mostText = 64'000;
    std::string text = WritePaletteFile(Palette(), "");
    while (static_cast<long long>(text.size()) > size) text.resize(text.rfind("\r\n", text.size() - 3) + 2);
    const auto room = static_cast<std::size_t>(std::min<long long>(size, mostText));
    while (isInLines && text.size() + std::strlen(line) <= room) text += line;
    return text;
}

/// It is there for as long as the value lives.
class LargeFile {
public:
    LargeFile(long long size, bool isInLines) {
        const OwnedFile file(::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        const std::string text = Beginning(size, isInLines);
        DWORD written = 0;
        LARGE_INTEGER end{};
        end.QuadPart = size;
        if (!::WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) ||
            !::SetFilePointerEx(file.get(), end, nullptr, FILE_BEGIN) || !::SetEndOfFile(file.get()))
            std::abort();
    }
    LargeFile(const LargeFile&) = delete;
    LargeFile& operator=(const LargeFile&) = delete;
    ~LargeFile() { ::DeleteFileW(path); }
};

void ReadPlainly() {
    std::size_t size = 0;
    ReadBlocks(OpenForReading("growth.txt"), [&size](std::string_view block) {
        size += block.size();
        return true;
    });
    if (size == 0) std::abort();
}

/// As Windows does when the user drops the file.
void Drop(HWND form) {
    std::array<wchar_t, MAX_PATH> full{};
    const DWORD length = ::GetFullPathNameW(path, full.size(), full.data(), nullptr);
    const std::size_t bytes = (length + 2) * sizeof(wchar_t);
    const HGLOBAL list = ::GlobalAlloc(GHND, sizeof(DROPFILES) + bytes);
    auto* header = static_cast<DROPFILES*>(::GlobalLock(list));
    header->pFiles = sizeof(DROPFILES);
    header->fWide = TRUE;
    std::memcpy(header + 1, full.data(), bytes - sizeof(wchar_t));
    ::GlobalUnlock(list);
    ::SendMessageW(form, WM_DROPFILES, reinterpret_cast<WPARAM>(list), 0);
}

void Open(HWND form) {
    Drop(form);
    ::RedrawWindow(form, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void RequireOpen(HWND form) {
    std::array<wchar_t, 100> title{};
    ::GetWindowTextW(form, title.data(), title.size());
    if (!std::wcsstr(title.data(), path)) std::abort();
}

void TellSize(const RunningProgram& running, const std::string& kind, long long size, int rounds) {
    const LargeFile file(size, kind == "lines");
    const HWND form = running.form();
    const auto bytes = static_cast<double>(size);
    TellPoint("files." + kind + ".ms", bytes, MedianOf(rounds, [form](int /*round*/) { Open(form); }));
    RequireOpen(form);
    if (kind == "oneline")
        TellPoint("files.plain.ms", bytes, MedianOf(rounds, [](int /*round*/) { ReadPlainly(); }));
    TellPoint("files." + kind + ".kb", bytes, Kilobytes(running.usage()));
}

}  // namespace

void GrowOverFiles(const Effort& effort) {
    constexpr long long smallest = 1000;
    constexpr long long largest = 1'000'000'000;
    const int rounds = std::max(3, effort.of(9));
    const RunningProgram running;
    for (long long size = smallest; size <= largest; size *= 10) {
        for (const char* kind : {"lines", "oneline"}) {
            TellSize(running, kind, size, rounds);
            if (size < largest) TellSize(running, kind, 3 * size, rounds);
        }
    }
}
