// Does a saved file keep what Wine's files do not have, and what if it cannot?
#include "palette/KeptTraits.h"

#include <sddl.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/program/ReplacedFunction.h"
#include "tests/program/SavedFolder.h"

namespace {

constexpr const wchar_t* savedPath = L"C:\\Saved\\mine.txt";

std::string RightsOf(const wchar_t* path) {
    std::vector<BYTE> rights(4096);
    DWORD size = 0;
    ::GetFileSecurityW(path, DACL_SECURITY_INFORMATION, rights.data(), static_cast<DWORD>(rights.size()),
                       &size);
    char* text = nullptr;
    ::ConvertSecurityDescriptorToStringSecurityDescriptorA(rights.data(), SDDL_REVISION_1,
                                                           DACL_SECURITY_INFORMATION, &text, nullptr);
    const std::unique_ptr<char, decltype(&::LocalFree)> owned(text, &::LocalFree);
    return text ? text : "";
}

using OwnedDescriptor = std::unique_ptr<void, decltype(&::LocalFree)>;

OwnedDescriptor Descriptor(const char* rights) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    EXPECT_TRUE(::ConvertStringSecurityDescriptorToSecurityDescriptorA(rights, SDDL_REVISION_1, &descriptor,
                                                                       nullptr));
    return {descriptor, &::LocalFree};
}

void GiveEverybodyEverything() {
    const OwnedDescriptor everything = Descriptor("D:(A;;FA;;;WD)");
    EXPECT_TRUE(::SetFileSecurityW(savedPath, DACL_SECURITY_INFORMATION, everything.get()));
}

/// Streams stand in files of their own, with "_" for each colon of the stream.
auto StreamsInFiles() {
    return ReplacedFunction(&::CreateFileW, [](auto original, LPCWSTR path, auto... rest) {
        constexpr std::size_t beyondTheDrive = 6;
        std::wstring file = path;
        std::replace(file.begin() + beyondTheDrive, file.end(), L':', L'_');
        return original(file.c_str(), rest...);
    });
}
/// The file has its text and one more stream.
auto FirstStream() {
    return ReplacedFunction(&::FindFirstStreamW, [](auto, auto, auto, LPVOID data, auto) {
        std::wcscpy(static_cast<WIN32_FIND_STREAM_DATA*>(data)->cStreamName, L"::$DATA");
        WIN32_FIND_DATAW found{};
        return ::FindFirstFileW(L"C:\\Saved\\*", &found);
    });
}
auto NextStream() {
    return ReplacedFunction(&::FindNextStreamW, [isLast = false](auto, auto, LPVOID data) mutable {
        if (std::exchange(isLast, true)) return Refused(ERROR_HANDLE_EOF);
        std::wcscpy(static_cast<WIN32_FIND_STREAM_DATA*>(data)->cStreamName, L":Zone:$DATA");
        return TRUE;
    });
}

class SavingKeepsTraits : public SavedFolder {
protected:
    /// The file has been written, and no other put in its place.
    static void ExpectSavedInPlace() {
        bool isMoved = false;
        const auto moving = ReplacedFunction(&::MoveFileExW, [&isMoved](auto original, auto... arguments) {
            isMoved = true;
            return original(arguments...);
        });
        ExpectSaved();
        EXPECT_FALSE(isMoved);
    }
};

}  // namespace

TEST(KeptAttributes, AreThoseThatDoNotDependOnTheTextAndThatItHasChanged) {
    EXPECT_EQ(KeptAttributes(FILE_ATTRIBUTE_NORMAL), FILE_ATTRIBUTE_ARCHIVE);
    EXPECT_EQ(KeptAttributes(FILE_ATTRIBUTE_HIDDEN), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE);
    EXPECT_EQ(
        KeptAttributes(FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ENCRYPTED | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED),
        FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ENCRYPTED | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED |
            FILE_ATTRIBUTE_ARCHIVE);
    EXPECT_EQ(KeptAttributes(FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_REPARSE_POINT), FILE_ATTRIBUTE_ARCHIVE);
}

TEST_F(SavingKeepsTraits, TheCreationTime) {
    const FILETIME created{123, 456};
    FILETIME given{};
    const auto reading = ReplacedFunction(&::GetFileTime, [=](auto, auto, LPFILETIME time, auto, auto) {
        *time = created;
        return TRUE;
    });
    const auto giving = ReplacedFunction(
        &::SetFileTime,
        [&given](auto, auto, const FILETIME* time, const FILETIME* read, const FILETIME* written) {
            given = *time;
            EXPECT_TRUE(!read && !written);
            return TRUE;
        });
    ExpectSaved();
    EXPECT_EQ(::CompareFileTime(&given, &created), 0);
}

TEST_F(SavingKeepsTraits, ByWritingTheFileWhereNoCreationTimeCanBeGiven) {
    const auto refusing =
        ReplacedFunction(&::SetFileTime, [](auto...) { return Refused(ERROR_ACCESS_DENIED); });
    ExpectSavedInPlace();
}

TEST_F(SavingKeepsTraits, TheAccessRights) {
    GiveEverybodyEverything();
    const std::string rights = RightsOf(savedPath);
    ExpectSaved();
    EXPECT_EQ(RightsOf(savedPath), rights);
}

TEST_F(SavingKeepsTraits, ByWritingTheFileWhereNoRightsCanBeGiven) {
    GiveEverybodyEverything();
    const auto refusing =
        ReplacedFunction(&::SetFileSecurityW, [](auto...) { return Refused(ERROR_ACCESS_DENIED); });
    ExpectSavedInPlace();
}

TEST_F(SavingKeepsTraits, WithoutGivingTheRightsThatANewFileHasAnyway) {
    const auto refusing = ReplacedFunction(&::SetFileSecurityW, [](auto...) {
        ADD_FAILURE() << "the rights were set";
        return TRUE;
    });
    ExpectSaved();
}

TEST_F(SavingKeepsTraits, TheMarkOfInheritedRights) {
    const OwnedDescriptor inherited = Descriptor("D:AI(A;ID;FA;;;WD)");
    const DWORD length = ::GetSecurityDescriptorLength(inherited.get());
    const auto reading = ReplacedFunction(
        &::GetFileSecurityW,
        [&](auto original, LPCWSTR path, auto what, PSECURITY_DESCRIPTOR rights, DWORD size, LPDWORD needed) {
            if (!std::wstring_view(path).ends_with(L"mine.txt"))
                return original(path, what, rights, size, needed);
            *needed = length;
            if (size < length) return Refused(ERROR_INSUFFICIENT_BUFFER);
            std::memcpy(rights, inherited.get(), length);
            return TRUE;
        });
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    const auto giving =
        ReplacedFunction(&::SetFileSecurityW, [&](auto, auto, auto, PSECURITY_DESCRIPTOR rights) {
            DWORD revision = 0;
            return ::GetSecurityDescriptorControl(rights, &control, &revision);
        });
    ExpectSaved();
    EXPECT_TRUE(control & SE_DACL_AUTO_INHERITED);
    EXPECT_TRUE(control & SE_DACL_AUTO_INHERIT_REQ);
}

TEST_F(SavingKeepsTraits, TheAlternateStreams) {
    const std::string content = std::string(100'000, 's') + "end";
    WriteContent("C:\\Saved\\mine.txt_Zone_$DATA", content);
    {
        const auto files = StreamsInFiles();
        const auto first = FirstStream();
        const auto next = NextStream();
        ReplaceTextFile(savedFile, changed);
    }
    EXPECT_EQ(ContentOf(savedFile), changed);
    const std::string temporary = "C:\\Saved\\hvx" + std::to_string(::GetCurrentProcessId()) + "-0.tmp";
    EXPECT_EQ(ContentOf(temporary + "_Zone_$DATA"), content);
    EXPECT_FALSE(std::filesystem::exists(temporary));
}

TEST_F(SavingKeepsTraits, ByWritingTheFileWhereAStreamCannotBeGiven) {
    const auto files = StreamsInFiles();
    const auto first = FirstStream();
    const auto next = NextStream();
    ExpectSavedInPlace();
}
