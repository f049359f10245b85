// What does the user see? The display itself takes the picture, not Wine.
#pragma once

#include <array>
#include <fstream>
#include <string>

#include "tests/driver/Below.h"
#include "tests/driver/Huevox.h"
#include "tests/driver/Wait.h"

/// The colour of a pixel of the screen.
inline Color Displayed(POINT screen) {
    static constexpr const wchar_t* file = L"C:\\pixel.rgb";
    ::DeleteFileW(file);
    const std::string crop = "1x1+" + std::to_string(screen.x) + '+' + std::to_string(screen.y);
    // By way of the shell: what the program does depends on the name that it is called by.
    RunBelow("sh",
             "-c \"import -silent -window root -crop " + crop + " -depth 8 rgb:" + SystemPathOf(file) + '"');
    std::array<unsigned char, 3> bytes{};
    EXPECT_TRUE(Eventually([&] {
        std::ifstream picture(file, std::ios::binary);
        return !!picture.read(reinterpret_cast<char*>(bytes.data()), bytes.size());
    }));
    return ColorOf(bytes[0], bytes[1], bytes[2]);
}
