#include "randomuser/model/SessionFiles.h"

#include "randomuser/model/Facts.h"

namespace {

SixMarks SomeMarks() {
    SixMarks some;
    some.names = {"navy", "Sea, and [sky]", "", "aliceblue", "Navy", notJavaScript};
    some.colors = {ColorOf(0, 0, 128),     ColorOf(0, 128, 255), ColorOf(51, 51, 51),
                   ColorOf(240, 248, 255), ColorOf(0, 255, 255), ColorOf(1, 1, 1)};
    return some;
}

SixMarks GreyMarks() {
    SixMarks greys;
    greys.names.fill("grey");
    for (int mark = 0; mark < 6; ++mark) greys.colors.at(mark) = ColorOf(mark * 50, mark * 50, mark * 50);
    return greys;
}

std::string ManyLines(const SixMarks& marks) {
    std::string lines = PaletteText(marks, "");
    for (int line = 100; line < 1001; ++line) lines += "more\r\n";
    return lines;
}

}  // namespace

Files FilesAtStart() {
    const SixMarks some = SomeMarks();
    const SixMarks greys = GreyMarks();
    const std::string path = std::string(filesFolder) + '\\';
    return {{path + "some.txt", {PaletteText(some, ""), false, some}},
            {path + "old.txt", {OldPaletteText(greys), false, greys}},
            {path + "long.txt", {ManyLines(greys), false, greys, true}},
            {path + "letter.txt", {"Dear Sir or Madam\r\n"}},
            {path + "locked.txt", {PaletteText(greys, ""), true, greys}},
            {std::string(secondFolder) + "\\some.txt", {PaletteText(greys, ""), false, greys}}};
}
