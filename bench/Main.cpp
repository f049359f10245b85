// Measures the program beside a bare window, all in one run. bench/run builds and starts it.
#include <string_view>

#include "bench/Benches.h"

int main(int count, char** arguments) {
    const std::string_view which = count > 1 ? arguments[1] : "";
    if (which != "change") BenchStart();
    if (which != "start") BenchChange();
}
