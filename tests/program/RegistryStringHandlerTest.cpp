#include "settings/RegistryStringHandler.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

namespace {

constexpr const char* key = "Software\\Quorvane\\Registry Test";

class Registry : public testing::Test {
protected:
    void SetUp() override { ::RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Quorvane"); }
    void TearDown() override { ::RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Quorvane"); }

    std::string read(const char* path = key) const {
        return registry.ReadString(HKEY_CURRENT_USER, path, "Value");
    }
    bool write(std::string_view text, const char* path = key) const {
        return registry.WriteString(HKEY_CURRENT_USER, path, "Value", text);
    }
    void store(DWORD type, std::string_view bytes) const {
        HKEY opened = nullptr;
        ::RegCreateKeyA(HKEY_CURRENT_USER, key, &opened);
        ::RegSetValueExA(opened, "Value", 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                         static_cast<DWORD>(bytes.size()));
        ::RegCloseKey(opened);
    }

    RegistryStringHandler registry;
};

}  // namespace

TEST_F(Registry, ReadsWhatItWrote) {
    EXPECT_TRUE(write("text with \xC3\xA9"));
    EXPECT_EQ(read(), "text with \xC3\xA9");
    EXPECT_TRUE(write(""));
    EXPECT_EQ(read(), "");
    EXPECT_TRUE(write(std::string(1'000'000, 'x')));
    EXPECT_EQ(read(), std::string(1'000'000, 'x'));
}

TEST_F(Registry, MissingKeyAndMissingValueReadAsEmpty) {
    EXPECT_EQ(read(), "");
    store(REG_SZ, "x");
    EXPECT_EQ(registry.ReadString(HKEY_CURRENT_USER, key, "Other"), "");
}

TEST_F(Registry, AnotherTypeReadsAsEmpty) {
    store(REG_DWORD, std::string_view("\1\0\0\0", 4));
    EXPECT_EQ(read(), "");
    store(REG_BINARY, "text");
    EXPECT_EQ(read(), "");
    store(REG_EXPAND_SZ, std::string_view("text\0", 5));
    EXPECT_EQ(read(), "");
    store(REG_MULTI_SZ, std::string_view("text\0\0", 6));
    EXPECT_EQ(read(), "");
}

TEST_F(Registry, AStoredEmptyTextReadsAsEmptyNotAsABlank) {
    store(REG_SZ, "");
    EXPECT_EQ(read(), "");
}

TEST_F(Registry, ATextIsReadUpToItsFirstNul) {
    store(REG_SZ, std::string_view("one\0two\0", 8));
    EXPECT_EQ(read(), "one");
    store(REG_SZ, "without");
    EXPECT_EQ(read(), "without");
}

TEST_F(Registry, WritesTextInAKeyOfTheClassThatItHasAlwaysHad) {
    write("12345");
    HKEY opened = nullptr;
    ::RegOpenKeyExA(HKEY_CURRENT_USER, key, 0, KEY_READ, &opened);
    std::array<char, 20> keyClass{};
    DWORD size = keyClass.size();
    ::RegQueryInfoKeyA(opened, keyClass.data(), &size, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                       nullptr, nullptr, nullptr);
    DWORD type = REG_NONE;
    ::RegQueryValueExA(opened, "Value", nullptr, &type, nullptr, nullptr);
    ::RegCloseKey(opened);
    EXPECT_STREQ(keyClass.data(), "REG_DWORD");
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
}

TEST_F(Registry, SlashesAroundTheKeyAreTrimmed) {
    EXPECT_TRUE(write("x", "\\\\Software\\Quorvane\\Registry Test\\\\"));
    EXPECT_EQ(read(), "x");
    EXPECT_EQ(read("Software\\Quorvane\\Registry Test\\"), "x");
    EXPECT_EQ(read("\\Software\\Quorvane\\Registry Test"), "x");
}

TEST_F(Registry, DeletesOneValue) {
    write("x");
    EXPECT_TRUE(registry.DeleteValue(HKEY_CURRENT_USER, key, "Value"));
    EXPECT_EQ(read(), "");
    EXPECT_FALSE(registry.DeleteValue(HKEY_CURRENT_USER, key, "Value"));
    EXPECT_FALSE(registry.DeleteValue(HKEY_CURRENT_USER, "Software\\Quorvane\\None", "Value"));
}

TEST_F(Registry, DeletesAKey) {
    write("x");
    EXPECT_TRUE(registry.DeleteKey(HKEY_CURRENT_USER, "\\Software\\Quorvane\\Registry Test\\"));
    EXPECT_FALSE(registry.DeleteKey(HKEY_CURRENT_USER, key));
}

TEST_F(Registry, AKeyThatCannotBeCreatedIsAFailedWrite) {
    EXPECT_FALSE(registry.WriteString(nullptr, key, "Value", "x"));
    EXPECT_EQ(registry.ReadString(nullptr, key, "Value"), "");
}
