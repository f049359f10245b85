// Any bytes may be opened: they are refused, or they are a palette that can be saved and opened again.
#include <cstdint>
#include <cstdlib>

#include "palette/PaletteFile.h"

namespace {

constexpr std::size_t all = 1'000'000;

bool NoLeadByte(char) { return false; }
bool HighLeadByte(char byte) { return (static_cast<unsigned char>(byte) & 0x80) != 0; }

void Require(bool condition) {
    if (!condition) std::abort();
}

bool IsShowable(const Palette& palette) {
    for (int mark = 0; mark < markCount; ++mark) {
        const Color& color = palette.colors[mark];
        for (const int channel : {color.red, color.green, color.blue}) {
            if (channel < 0 || channel > 255) return false;
        }
        if (palette.names[mark].size() > std::size_t{2} * longestName) return false;
    }
    return true;
}

void Try(std::string_view text, LeadByteTest isLeadByte) {
    const std::optional<Palette> palette = ParsePaletteLines(SplitLines(text, all), isLeadByte);
    if (!palette) return;
    Require(IsShowable(*palette));
    const std::string written = WritePaletteFile(AsSaved(*palette), "%UR% %LD%");
    Require(ParsePaletteLines(SplitLines(written, all), isLeadByte) == AsSaved(*palette));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    Try(text, NoLeadByte);
    Try(text, HighLeadByte);
    return 0;
}
