// Measures the program beside a bare window, all in one run. bench/run builds and starts it.
#include <string_view>

#include "bench/Benches.h"

int main(int count, char** arguments) {
    const std::string_view which = count > 1 ? arguments[1] : "all";
    if (which == "start" || which == "all") BenchStart();
    if (which == "change" || which == "all") BenchChange();
    if (which == "pick" || which == "all") BenchPick();
    if (which == "picker" || which == "all") BenchOpenPicker();
    if (which == "open" || which == "all") BenchOpen();
}
