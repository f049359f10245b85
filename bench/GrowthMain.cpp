// Prints how the program grows over much work: huevox_growth SUBJECT [quick]. bench/growth builds and starts
// it.
#include <array>
#include <cstdio>
#include <string_view>

#include "bench/Growth.h"

namespace {

struct Subject {
    std::string_view name;
    void (*run)(const Effort& effort);
};
constexpr std::array<Subject, 4> subjects = {{{"changes", GrowOverChanges},
                                              {"undos", GrowOverUndos},
                                              {"openings", GrowOverOpenings},
                                              {"files", GrowOverFiles}}};

}  // namespace

int main(int count, char** arguments) {
    const std::string_view which = count > 1 ? arguments[1] : "";
    const bool isQuick = count > 2 && std::string_view(arguments[2]) == "quick";
    for (const Subject& subject : subjects) {
        if (subject.name != which) continue;
        subject.run(Effort{isQuick ? 10 : 1});
        return 0;
    }
    std::puts("usage: huevox_growth changes|undos|openings|files [quick]");
    return 2;
}
