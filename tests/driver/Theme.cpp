#include "tests/driver/Theme.h"

#include <array>

namespace {

constexpr Color darkest = ColorOf(0, 0, 0);
constexpr Color lightest = ColorOf(255, 255, 255);
constexpr Color middle = ColorOf(128, 128, 128);

constexpr int colorCount = COLOR_MENUBAR + 1;
constexpr std::array<int, 13> grounds = {COLOR_SCROLLBAR,
                                         COLOR_ACTIVECAPTION,
                                         COLOR_INACTIVECAPTION,
                                         COLOR_MENU,
                                         COLOR_WINDOW,
                                         COLOR_APPWORKSPACE,
                                         COLOR_BTNFACE,
                                         COLOR_3DLIGHT,
                                         COLOR_INFOBK,
                                         COLOR_INACTIVEBORDER,
                                         COLOR_GRADIENTACTIVECAPTION,
                                         COLOR_GRADIENTINACTIVECAPTION,
                                         COLOR_MENUBAR};
constexpr std::array<int, 9> texts = {COLOR_WINDOWFRAME,  COLOR_MENUTEXT,   COLOR_WINDOWTEXT,
                                      COLOR_CAPTIONTEXT,  COLOR_BTNTEXT,    COLOR_INACTIVECAPTIONTEXT,
                                      COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW, COLOR_INFOTEXT};

}  // namespace

const Theme blackTheme = {
    "Black", darkest, lightest, ColorOf(0, 255, 0), ColorOf(26, 235, 255), darkest, ColorOf(255, 255, 0)};
const Theme whiteTheme = {"White",  lightest,          darkest, ColorOf(96, 0, 0), ColorOf(55, 0, 110),
                          lightest, ColorOf(0, 0, 159)};

SystemColors::SystemColors() {
    for (int index = 0; index < colorCount; ++index) {
        indexes.push_back(index);
        before.push_back(::GetSysColor(index));
    }
}

SystemColors::~SystemColors() { ::SetSysColors(colorCount, indexes.data(), before.data()); }

void SystemColors::use(const Theme& theme) const {
    std::vector<COLORREF> colors = before;
    for (const int index : grounds) colors[index] = Pack(theme.ground);
    for (const int index : texts) colors[index] = Pack(theme.text);
    colors[COLOR_BTNSHADOW] = Pack(middle);
    colors[COLOR_GRAYTEXT] = Pack(theme.grayed);
    colors[COLOR_HIGHLIGHT] = Pack(theme.selected);
    colors[COLOR_MENUHILIGHT] = Pack(theme.selected);
    colors[COLOR_HIGHLIGHTTEXT] = Pack(theme.selectedText);
    colors[COLOR_HOTLIGHT] = Pack(theme.link);
    ::SetSysColors(colorCount, indexes.data(), colors.data());
}
