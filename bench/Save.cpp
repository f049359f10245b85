// How long does saving a palette take, compared with one plain write of as many bytes?
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/Benches.h"
#include "palette/PaletteFile.h"
#include "palette/TextFile.h"

namespace {

constexpr const char* saved = "saved palette.txt";

void WritePlainly(const std::string& text) {
    const OwnedFile file(
        ::CreateFileA(saved, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (!::WriteFile(file.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr))
        std::abort();
    if (!::FlushFileBuffers(file.get())) std::abort();
}

}  // namespace

void BenchSave(const Effort& effort) {
    const int rounds = effort.of(200);
    const Palette palette;
    const std::string text = WritePaletteFile(palette, "");
    std::vector<double> plain;
    std::vector<double> program;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        const double start = NowInMilliseconds();
        WritePlainly(text);
        const double between = NowInMilliseconds();
        ReplaceTextFile(saved, WritePaletteFile(palette, ""));
        const double end = NowInMilliseconds();
        plain.push_back(between - start);
        program.push_back(end - between);
        ratios.push_back(program.back() / plain.back());
    }
    ::DeleteFileA(saved);
    Tell("save.rounds", rounds);
    Tell("save.bytes", static_cast<double>(text.size()));
    Tell("save.plain.ms", Median(plain));
    Tell("save.program.ms", Median(program));
    Tell("save.ratio", Median(ratios));
}
