// Any bytes may be opened: they are refused, or they are a palette that can be saved and opened again.
#include "fuzz/FuzzInput.h"
#include "palette/FirstLines.h"
#include "palette/PaletteFile.h"

namespace {

bool IsShowable(const Palette& palette) {
    for (int mark = 0; mark < markCount; ++mark) {
        const Color& color = palette.colors[mark];
        for (const int channel : {color.red, color.green, color.blue}) {
            if (channel < 0 || channel > 255) return false;
        }
        if (CountUnits(palette.names[mark]) > longestName) return false;
    }
    return true;
}

/// Reads a text that comes in blocks of any size.
std::optional<Palette> Read(std::string_view text, std::size_t blockSize) {
    FirstLines lines(linesLookedAt, 1001);
    while (!text.empty() && lines.take(text.substr(0, blockSize)))
        text.remove_prefix(std::min(blockSize, text.size()));
    return ParsePaletteLines(lines.kept());
}

void Try(std::string_view text) {
    const std::optional<Palette> palette = Read(text, text.size());
    Require(Read(text, 1 + text.size() % 61) == palette);
    if (!palette) return;
    Require(IsShowable(*palette));
    const std::string written = WritePaletteFile(AsSaved(*palette), "%UR% %LD%");
    Require(Read(written, written.size()) == AsSaved(*palette));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Try(text);
    return 0;
}
