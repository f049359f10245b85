#include "pickers/SwatchPlaces.h"

#include <cstddef>

#include "pickers/swatches.rc.h"

namespace {

Area Square(int column, int row, int size) {
    return {column * size, row * size, (column + 1) * size, (row + 1) * size};
}

}  // namespace

std::vector<Area> WebsafePlaces() {
    constexpr int levels = 6;
    std::vector<Area> places;
    for (int i = 0; i < levels * levels * levels; ++i) {
        const int red = i / (levels * levels);
        const int green = i / levels % levels;
        const int blue = i % levels;
        places.push_back(Square(green * levels + red, levels - 1 - blue, WEBSAFE_SIZE));
    }
    return places;
}

std::vector<Area> FailsafePlaces() {
    std::vector<Area> places;
    for (int i = 0; i < FAILSAFE_COUNT; ++i) {
        const int left = i * FAILSAFE_STEP;
        places.push_back({left, 0, left + FAILSAFE_WIDTH, FAILSAFE_HEIGHT});
    }
    return places;
}

std::vector<Area> JavaScriptPlaces() {
    constexpr std::size_t count = std::size_t{JAVASCRIPT_COLUMNS} * JAVASCRIPT_ROWS;
    std::vector<Area> places;
    places.reserve(count);
    for (int i = 0; i < static_cast<int>(count); ++i)
        places.push_back(Square(i % JAVASCRIPT_COLUMNS, i / JAVASCRIPT_COLUMNS, JAVASCRIPT_SIZE));
    return places;
}
