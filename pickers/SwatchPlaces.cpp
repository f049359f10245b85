#include "pickers/SwatchPlaces.h"

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
    std::vector<Area> places(JAVASCRIPT_COLUMNS * JAVASCRIPT_ROWS);
    for (int i = 0; i < JAVASCRIPT_COLUMNS * JAVASCRIPT_ROWS; ++i)
        places[i] = Square(i % JAVASCRIPT_COLUMNS, i / JAVASCRIPT_COLUMNS, JAVASCRIPT_SIZE);
    return places;
}
