// How does a test see which address the program has handed to the shell?
#pragma once

#include <array>
#include <string>

#include "tests/driver/Palettes.h"
#include "tests/driver/ReplacedFile.h"

/// What is registered for a kind of address, such as "http", is the stand-in or nothing, for as long as the
/// value lives.
class ShellCommand {
public:
    enum class To { standIn, nothing };

    ShellCommand(const char* scheme, To to) : key(std::string(scheme) + R"(\shell\open\command)") {
        std::array<char, 1024> text{};
        DWORD size = text.size();
        EXPECT_EQ(
            ::RegGetValueA(HKEY_CLASSES_ROOT, key.c_str(), "", RRF_RT_REG_SZ, nullptr, text.data(), &size),
            ERROR_SUCCESS);
        before = text.data();
        EXPECT_EQ(::RegDeleteTreeA(HKEY_CLASSES_ROOT, key.c_str()), ERROR_SUCCESS);
        if (to == To::standIn) store(quoted(standIn()) + ' ' + quoted("%1"));
    }
    ShellCommand(const ShellCommand&) = delete;
    ShellCommand& operator=(const ShellCommand&) = delete;
    ~ShellCommand() { store(before); }

    /// The command line that the shell starts the stand-in by, for an address.
    static std::string lineFor(const std::string& address) {
        return quoted(standIn()) + ' ' + quoted(address);
    }

    /// The command line that the stand-in was last started by.
    static std::string line() { return ContentOf(PathOf("command.txt")); }
    static void forgetLine() { DeleteSoon(PathOf("command.txt")); }

private:
    static std::string quoted(const std::string& text) { return '"' + text + '"'; }
    static std::string standIn() {
        std::array<char, MAX_PATH> path{};
        ::GetFullPathNameA(HUEVOX_STAND_IN, path.size(), path.data(), nullptr);
        return path.data();
    }
    void store(const std::string& command) const {
        EXPECT_EQ(::RegSetKeyValueA(HKEY_CLASSES_ROOT, key.c_str(), "", REG_SZ, command.c_str(),
                                    static_cast<DWORD>(command.size() + 1)),
                  ERROR_SUCCESS);
    }

    std::string key;
    std::string before;
};
