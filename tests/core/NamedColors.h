// Which names and values do others give the JavaScript colours?
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <map>
#include <string>

#include "core/Color.h"

/// By name, in alphabetical order.
using NamedColors = std::map<std::string, PackedColor>;

/// The colours of today's style sheets: lines such as "tan": [210, 180, 140].
inline NamedColors ReadColorsOfToday() {
    std::ifstream file(HUEVOX_COLOR_NAMES);
    NamedColors colors;
    for (std::string line; std::getline(file, line);) {
        std::array<char, 32> name{};
        int red = 0;
        int green = 0;
        int blue = 0;
        const char* form = R"( "%31[a-z]": [%d, %d, %d)";
        const int parts = std::sscanf(line.c_str(), form, name.data(), &red, &green, &blue);
        if (parts == 4) colors[name.data()] = Pack(ColorOf(red, green, blue));
    }
    return colors;
}

/// The same without the names that came into use after JavaScript's own.
inline NamedColors ReadJavaScriptColors() {
    NamedColors colors = ReadColorsOfToday();
    for (const char* later : {"darkgrey", "darkslategrey", "dimgrey", "grey", "lightgray", "lightslategrey",
                              "slategrey", "rebeccapurple"}) {
        EXPECT_EQ(colors.erase(later), 1U) << later;
    }
    return colors;
}
