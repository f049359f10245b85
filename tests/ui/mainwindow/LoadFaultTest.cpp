// What does the user see when the program cannot load its window?
#include <array>

#include "tests/driver/Palettes.h"
#include "toolkit/platform/Text.h"

namespace {

/// A copy of the program in which an icon of its tool bar has no picture of any size.
class LoadFault : public PaletteTest {
protected:
    static std::string DamagedCopy() {
        std::array<WORD, 3> noPictures = {0, IMAGE_ICON, 0};
        std::string copy = PathOf("damaged.exe");
        EXPECT_TRUE(::CopyFileA(HUEVOX_EXE, copy.c_str(), FALSE));
        const HANDLE update = ::BeginUpdateResourceW(Wide(copy).c_str(), FALSE);
        EXPECT_TRUE(::UpdateResourceW(update, RT_GROUP_ICON, MAKEINTRESOURCEW(IDI_Find), language,
                                      noPictures.data(), sizeof noPictures));
        EXPECT_TRUE(::EndUpdateResourceW(update, FALSE));
        return copy;
    }

private:
    static constexpr WORD language = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
};

}  // namespace

TEST_F(LoadFault, IsToldOnceAndEndsTheProgramWhenItIsAnswered) {
    const Huevox huevox(Huevox::DoNotWait{}, DamagedCopy());
    ASSERT_TRUE(Eventually([&] { return huevox.dialog() || !huevox.isRunning(); }));
    ASSERT_TRUE(huevox.isRunning()) << huevox.exitCode();
    const HWND box = WaitForMessage(huevox, "Huevox encountered an unexpected error and must close.");
    ASSERT_TRUE(box);
    EXPECT_TRUE(Eventually([&] { return ShowsIcon(box, IDI_ERROR); }));
    EXPECT_EQ(huevox.dialogCount(), 1);
    EXPECT_EQ(huevox.form("frmMain"), nullptr);
    Press(VK_RETURN);
    EXPECT_EQ(huevox.waitForEnd(), 1);
}
