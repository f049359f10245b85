// Does everything show one colour after a burst of any input?
#include <algorithm>
#include <array>
#include <cstdio>
#include <random>
#include <string>

#include "tests/driver/UiTest.h"

namespace {

class Bursts : public UiTest {};

std::string HtmlHex(const Color& color) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02X%02X%02X", static_cast<unsigned>(color.red),
                  static_cast<unsigned>(color.green), static_cast<unsigned>(color.blue));
    return text.data();
}

void ExpectOneColor(const Huevox& huevox, int mark) {
    // The clipboard is written when nothing has changed for a while: then the burst is over.
    EXPECT_TRUE(Eventually([&] { return ClipboardText() == HtmlHex(huevox.sliders()); }));
    const Color color = huevox.sliders();
    EXPECT_EQ(huevox.text(IDC_lblClipboard), HtmlHex(color));
    EXPECT_BECOMES(huevox.sample(mark), color);
    EXPECT_EQ(huevox.text(IDC_txtSetRed), std::to_string(color.red));
    EXPECT_EQ(huevox.text(IDC_txtSetGreen), std::to_string(color.green));
    EXPECT_EQ(huevox.text(IDC_txtSetBlue), std::to_string(color.blue));
    const int smallest = std::min({color.red, color.green, color.blue});
    EXPECT_BECOMES(huevox.barStep(smallest), color);
}

}  // namespace

TEST_F(Bursts, OfKeysEndInOneColor) {
    const Huevox huevox;
    huevox.focusSlider(IDC_hsbGreen);
    std::mt19937 random(20041126);
    for (int key = 0; key < 300; ++key) {
        switch (random() % 6) {
            case 0: Press(VK_LEFT); break;
            case 1: Press(VK_NEXT); break;
            case 2: Press(VK_UP, {}); break;
            case 3: Press(VK_END); break;
            case 4: Press(VK_F2); break;
            default: Press(VK_RIGHT); break;
        }
    }
    ExpectOneColor(huevox, 0);
}

TEST_F(Bursts, OfPastesAndMarksEndInOneColor) {
    const Huevox huevox;
    Press(VK_F2);
    huevox.selectMark(4);
    for (int round = 0; round < 20; ++round) {
        Press(VK_F3);
        Press(VK_RIGHT);  // to the next mark
        if (round % 3 == 0) Press(VK_F2);
    }
    ASSERT_BECOMES(huevox.isEnabled(IDC_picSample + (4 + 20) % 6), true);
    ExpectOneColor(huevox, (4 + 20) % 6);
}

TEST_F(Bursts, OfSentMessagesEndInOneColor) {
    const Huevox huevox;
    std::mt19937 random(7);
    for (int message = 0; message < 400; ++message) {
        const int slider = IDC_hsbRed + static_cast<int>(random() % 3);
        const auto position = static_cast<WORD>(random() % 256);
        // From another program, as automation does: it gets in wherever the program lets sent messages
        // through.
        ::SendNotifyMessageA(huevox.window(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, position),
                             reinterpret_cast<LPARAM>(huevox.control(slider)));
        if (message % 50 == 0) {
            ::SendNotifyMessageA(huevox.control(Option(static_cast<int>(random() % 2))), BM_CLICK, 0, 0);
        }
    }
    ASSERT_TRUE(Eventually([&] { return ClipboardText() == huevox.text(IDC_lblClipboard); }));
    ExpectOneColor(huevox, huevox.isChecked(Option(0)) ? 0 : 1);
}
