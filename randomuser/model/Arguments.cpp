#include "randomuser/model/Arguments.h"

#include <array>

#include "randomuser/model/SessionFiles.h"

namespace {

constexpr std::array valueTexts = std::to_array<const char*>(
    {"0",  "7",  "007", "255", "256", "128", "51", "102", "204", "240", "-1",  "1.5", "1e2", "x",
     "ff", "0f", "F",   "FFF", "G0",  "c0",  "80", "FA",  "33",  "",    " 9 ", "9 ",  "999", "ABCD"});

constexpr std::array nameTexts = std::to_array<const char*>({"navy",
                                                             "Navy",
                                                             "red",
                                                             "cyan",
                                                             "aqua",
                                                             "magenta",
                                                             "White",
                                                             "white",
                                                             "black",
                                                             "sea, [deep]",
                                                             "Type a colour name",
                                                             "Not JavaScript colour",
                                                             "not javascript colour",
                                                             "",
                                                             "x",
                                                             "100% & more",
                                                             "a name that is far too long",
                                                             "café, naïve",
                                                             "Очень длинное название",
                                                             "Θάλασσα 海",
                                                             "🎨 €"});

constexpr std::array paths = std::to_array<const char*>(
    {"some.txt", "old.txt", "long.txt", "letter.txt", "locked.txt", "other\\some.txt", "one.txt", "two.txt",
     "other\\one.txt", "New palette.txt", "Красные 赤.txt", "other\\Θάλασσα 🎨.txt"});
constexpr const char* missingPath = "nowhere.txt";
constexpr std::array noPalettes = std::to_array<const char*>({missingPath, "other", "letter.txt"});

constexpr std::array formats =
    std::to_array<const char*>({"", "%UR%", "x", "%DR%/%UG%-%LB% & %LD%", "%%UR%%", "rgb %DR%, %DG%, %DB%;",
                                "no token at all", "цвет %UR% 色 %UG% café 🎨"});

constexpr std::array copiedTexts = std::to_array<const char*>({"theirs", "#123456", "two\r\nlines"});

}  // namespace

void SliderKeys(Action& action, Draws& draws) {
    action.which = draws.below(3);
    const int key = draws.below(8);
    const int times = 1 + draws.below(3);
    action.value = key + 8 * times;
}

void TypedValue(Action& action, Draws& draws) {
    action.which = draws.below(3);
    action.text = draws.oneOf(valueTexts);
}

void TypedName(Action& action, Draws& draws) {
    action.which = draws.below(6);
    action.text = draws.oneOf(nameTexts);
}

/// Aliceblue, which a search does not know, comes more often than the others.
void AnySwatch(Action& action, Draws& draws) {
    constexpr std::array counts = {216, 16, 140};
    action.which = draws.below(3);
    const bool isFirst = draws.below(5) == 0;
    action.value = isFirst ? 0 : draws.below(counts.at(action.which));
}

void CopiedText(Action& action, Draws& draws) { action.text = draws.oneOf(copiedTexts); }

void AnyButton(Action& action, Draws& draws) {
    constexpr std::array buttons = {1, 2, 6, 7};
    action.which = draws.below(3);
    action.value = buttons.at(draws.below(4));
}

void AnyPath(Action& action, Draws& draws) {
    const bool isMissing = draws.below(120) == 0;
    action.text = std::string(filesFolder) + '\\' + (isMissing ? missingPath : draws.oneOf(paths));
}

/// What cannot be opened does not end the program here, so it comes more often.
void DroppedPath(Action& action, Draws& draws) {
    action.which = draws.below(3);
    const bool isPalette = draws.below(4) != 0;
    action.text =
        std::string(filesFolder) + '\\' + (isPalette ? draws.oneOf(paths) : draws.oneOf(noPalettes));
}

void TypedFormat(Action& action, Draws& draws) { action.text = draws.oneOf(formats); }
