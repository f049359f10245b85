// How long does opening a large palette file take, compared with reading it?
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/Benches.h"
#include "palette/FirstLines.h"
#include "palette/PaletteFile.h"
#include "palette/TextFile.h"

namespace {

constexpr const char* path = "large palette.txt";
constexpr std::size_t kilobyte = 1000;

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
    if (!ParsePaletteLines(lines.kept())) std::abort();
}

double Milliseconds(void (*work)()) {
    const double before = NowInMilliseconds();
    work();
    return NowInMilliseconds() - before;
}

/// Prints the cost of one kind of file, and returns the milliseconds that opening it takes.
double TellFile(const std::string& kind, std::size_t kilobytes, std::string_view filler, int rounds) {
    ReplaceTextFile(path, PaletteOfSize(kilobytes * kilobyte, filler));
    std::vector<double> plain;
    std::vector<double> opened;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        plain.push_back(Milliseconds(ReadPlainly));
        opened.push_back(Milliseconds(OpenAsPalette));
        ratios.push_back(plain.back() / opened.back());
    }
    ::DeleteFileA(path);
    const std::string name = "open." + kind + "." + std::to_string(kilobytes) + ".";
    const auto size = static_cast<double>(kilobytes);
    Tell(name + "plain.rate", size / Median(plain));  // kilobytes a millisecond are megabytes a second
    Tell(name + "rate", size / Median(opened));
    Tell(name + "ms", Median(opened));
    Tell(name + "ratio", Median(ratios));
    return Median(opened);
}

void TellGrowth(const std::string& kind, std::string_view filler, int rounds) {
    double smallest = 0;
    for (const std::size_t kilobytes : {500, 5000, 50'000}) {
        const double time = TellFile(kind, kilobytes, filler, rounds);
        if (smallest == 0) smallest = time;
        Tell("open." + kind + "." + std::to_string(kilobytes) + ".growth", time / smallest);
    }
}

}  // namespace

void BenchOpen(const Effort& effort) {
    const int rounds = std::max(5, effort.of(15));
    Tell("open.rounds", rounds);
    TellGrowth("lines", "a line that no reader looks at\r\n", rounds);
    TellGrowth("oneline", "a line that no reader looks at ", rounds);
}
