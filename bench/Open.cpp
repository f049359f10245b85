// How long does opening a large palette file take beside reading it?
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/Benches.h"
#include "bench/Figures.h"
#include "palette/FirstLines.h"
#include "palette/PaletteFile.h"
#include "palette/TextFile.h"
#include "toolkit/CodePage.h"

namespace {

constexpr const char* path = "large palette.txt";
constexpr std::size_t megabyte = 1'000'000;

std::string PaletteOfSize(std::size_t size, std::string_view filler) {
    std::string text = WritePaletteFile(Palette(), "");
    while (text.size() < size) text += filler;
    return text;
}

void ReadPlainly() {
    const OwnedFile file = OpenForReading(path);
    const DWORD size = ::GetFileSize(file.get(), nullptr);
    const OwnedGlobal text(::GlobalAlloc(GMEM_FIXED, size));
    DWORD read = 0;
    if (!::ReadFile(file.get(), text.get(), size, &read, nullptr) || read != size) std::abort();
}

void OpenAsPalette() {
    constexpr std::size_t mostLines = 1001;
    const OwnedFile file = OpenForReading(path);
    FirstLines lines(linesLookedAt, mostLines);
    ReadBlocks(file, [&](std::string_view block) { return lines.take(block); });
    if (!ParsePaletteLines(lines.kept(), IsLeadByte)) std::abort();
}

double Milliseconds(void (*work)()) {
    const double before = NowInMilliseconds();
    work();
    return NowInMilliseconds() - before;
}

void PrintRow(const char* what, std::size_t megabytes, std::string_view filler) {
    constexpr int rounds = 15;
    ReplaceText(path, PaletteOfSize(megabytes * megabyte, filler));
    std::vector<double> plain;
    std::vector<double> opened;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        plain.push_back(Milliseconds(ReadPlainly));
        opened.push_back(Milliseconds(OpenAsPalette));
        ratios.push_back(plain.back() / opened.back());
    }
    const auto size = static_cast<double>(megabytes);
    std::printf("| %zu MB %s | %.0f | %.0f | %.2f |\n", megabytes, what, 1000 * size / Median(plain),
                1000 * size / Median(opened), Median(ratios));
    ::DeleteFileA(path);
}

}  // namespace

void BenchOpen() {
    std::puts("| a palette file of | read plainly, MB/s | opened, MB/s | median ratio |");
    std::puts("|---|---|---|---|");
    for (const std::size_t megabytes : {5, 50}) {
        PrintRow("in lines", megabytes, "a line that no reader looks at\r\n");
        PrintRow("in one line", megabytes, "a line that no reader looks at ");
    }
    std::puts("");
}
