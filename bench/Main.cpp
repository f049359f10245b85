// Measures the program beside bare windows: huevox_bench BENCHMARK [quick]. bench/run builds and starts it.
#include <array>
#include <cstdio>
#include <string_view>

#include "bench/Benches.h"

namespace {

struct Bench {
    std::string_view name;
    void (*run)(const Effort& effort);
};
constexpr std::array<Bench, 10> benches = {{{"start", BenchStart},
                                            {"change", BenchChange},
                                            {"parts", BenchParts},
                                            {"hand", BenchHand},
                                            {"contrast", BenchContrast},
                                            {"pick", BenchPick},
                                            {"picker", BenchOpenPicker},
                                            {"handles", BenchHandles},
                                            {"open", BenchOpen},
                                            {"save", BenchSave}}};

}  // namespace

int main(int count, char** arguments) {
    const std::string_view which = count > 1 ? arguments[1] : "";
    const bool isQuick = count > 2 && std::string_view(arguments[2]) == "quick";
    for (const Bench& bench : benches) {
        if (bench.name != which) continue;
        bench.run(Effort{isQuick ? 10 : 1});
        return 0;
    }
    std::puts("usage: huevox_bench start|change|parts|hand|contrast|pick|picker|handles|open|save [quick]");
    return 2;
}
