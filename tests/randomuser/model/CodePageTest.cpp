#include "randomuser/model/CodePage.h"

#include "tests/randomuser/model/SoakModel.h"

TEST(SoakCodePage, HoldsTheLettersOfWesternEuropeAndNoOthers) {
    EXPECT_EQ(ShownInBox("plain"), "plain");
    EXPECT_EQ(ShownInBox("é€Ÿÿ\u00A0"), "é€Ÿÿ\u00A0");
    EXPECT_EQ(ShownInBox("aЖΘ海Āz"), "a????z");
    EXPECT_EQ(ShownInBox("🎨!"), "?!");
    EXPECT_EQ(BytesInFile("é€Ÿÿ"), "\xE9\x80\x9F\xFF");
    EXPECT_EQ(BytesInFile("plain\r\n"), "plain\r\n");
}

TEST_F(SoakModel, ShowsANameAsTheBoxDoes) {
    play({Kind::typeName, 0, 0, "é Ж 🎨"});
    EXPECT_EQ(model.look().marks.names[0], "é ? ?");
    play({Kind::typeName, 1, 0, "ééééééééééééééééééééЖ!"});
    EXPECT_EQ(model.look().marks.names[1], "éééééééééééééééééééé?");
    play({Kind::typeName, 2, 0, "né"});
    play({Kind::eraseName, 2});
    EXPECT_EQ(model.look().marks.names[2], "n");
}

TEST_F(SoakModel, WritesNamesAndTemplateInTheBytesOfTheCodePage) {
    play({Kind::typeName, 0, 0, "é Ж"});
    play({Kind::openFormat});
    play({Kind::typeFormat, 0, 0, "色 €"});
    EXPECT_EQ(model.look().box.text, "? €");
    play({Kind::closeDialog, 0, 1});
    play({Kind::savePaletteAs});
    chooseFile("Красные 赤.txt");
    EXPECT_EQ(model.look().title, "Huevox - Красные 赤.txt");
    const std::string& text = model.files().at(std::string(filesFolder) + "\\Красные 赤.txt").text;
    EXPECT_NE(text.find("\r\n\xE9 ?\r\n255,0,0\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\nCustom: ? \x80\r\n"), std::string::npos);
}
