// How does a test use an installed copy of the program?
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>

#include "toolkit/platform/Platform.h"

/// The installers that are tested: the packages of this version, and the same with a higher one.
inline const std::filesystem::path setup{"packages-tested/Huevox-" HUEVOX_VERSION "-setup.exe"};
inline const std::filesystem::path newerSetup{"packages-tested/Huevox-" HUEVOX_NEWER_VERSION "-setup.exe"};

/// The system's list of programs. All programs share it: the first one makes it, and none removes it.
inline constexpr const char* programsKey = R"(Software\Microsoft\Windows\CurrentVersion\Uninstall)";
inline constexpr const char* uninstallKey = R"(Software\Microsoft\Windows\CurrentVersion\Uninstall\Huevox)";
inline constexpr const char* settingsKey = R"(Software\Quorvane\Huevox 2004)";

/// A process, started at once and ended by the destructor, by force if need be.
class Process {
public:
    /// Not through a shell: the installer wants its folder without quotes.
    explicit Process(const std::string& commandLine);
    /// The program, once its window is there, started as by a click in the Start menu.
    [[nodiscard]] static Process FromStartMenu();
    Process(Process&& other) noexcept;
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process();

    /// Its exit code, when it ends in time.
    [[nodiscard]] std::optional<int> waitForEnd() const;
    /// Waits for a window of that class on the screen; nullptr when none comes.
    [[nodiscard]] HWND waitForWindow(const char* className) const;

private:
    Process() = default;

    HANDLE process = nullptr;
};

/// Runs a setup or an uninstaller to its end. The exit code, or -1 when it does not end.
[[nodiscard]] int RunToEnd(const std::string& commandLine);

std::filesystem::path DefaultFolder();
std::filesystem::path Shortcut();
/// The program that the shortcut starts.
std::filesystem::path ShortcutTarget();
/// Removes the copy in this folder silently and waits until it is gone.
[[nodiscard]] bool Remove(const std::filesystem::path& folder, const std::string& extra = "");

/// A value of a key of the user; "" when there is none. Numbers in decimal.
std::string Value(const char* key, const char* name);
bool HasKey(const char* key);
[[nodiscard]] bool MakeKey(const char* key);
void StoreSetting();

/// Every file in the folders where programs and their menu entries are, and every key of the user's software.
std::set<std::string> Traces();
/// What has come to the traces since ("+") and what has gone ("-"), a line each.
std::string ChangeOfTraces(const std::set<std::string>& before);
