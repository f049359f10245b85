#include "tests/driver/UiTest.h"

#include <array>

namespace {

[[nodiscard]] bool OpenClipboardSoon() {
    return Eventually([] { return ::OpenClipboard(nullptr) != FALSE; });
}

template <class Character>
std::basic_string<Character> ClipboardData(UINT format) {
    if (!OpenClipboardSoon()) {
        ADD_FAILURE() << "another program keeps the clipboard open";
        return {};
    }
    const HANDLE data = ::GetClipboardData(format);
    const auto* text = data ? static_cast<const Character*>(::GlobalLock(data)) : nullptr;
    std::basic_string<Character> result;
    if (text) result = text;
    if (text) ::GlobalUnlock(data);
    ::CloseClipboard();
    return result;
}

void DeleteSettings() { ::RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\Quorvane"); }

}  // namespace

void UiTest::SetUp() {
    waitedBefore = WaitedMilliseconds();
    DeleteSettings();
    ASSERT_TRUE(OpenClipboardSoon());
    ::EmptyClipboard();
    ::CloseClipboard();
    MoveMouse({1, 1});
}

void UiTest::TearDown() {
    DeleteSettings();
    RecordProperty("waited", std::to_string(WaitedMilliseconds() - waitedBefore));
}

std::string ClipboardText() {
    // Read only when it has changed: a test that looks again and again would hold the clipboard open just
    // when the program wants to copy.
    static DWORD lastRead = 0;
    static std::string text;
    const DWORD number = ::GetClipboardSequenceNumber();
    if (number != lastRead) text = ClipboardData<char>(CF_TEXT);
    lastRead = number;
    return text;
}

std::wstring ClipboardUnicodeText() { return ClipboardData<wchar_t>(CF_UNICODETEXT); }

void CopyElsewhere(std::string_view text) {
    ASSERT_TRUE(OpenClipboardSoon());
    ::EmptyClipboard();
    const std::wstring wide = Wide(text);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, (wide.size() + 1) * sizeof(wchar_t));
    auto* target = static_cast<wchar_t*>(::GlobalLock(memory));
    wide.copy(target, wide.size());
    target[wide.size()] = L'\0';
    ::GlobalUnlock(memory);
    ::SetClipboardData(CF_UNICODETEXT, memory);
    ::CloseClipboard();
}

ClipboardHeld::ClipboardHeld() { EXPECT_TRUE(OpenClipboardSoon()); }

ClipboardHeld::~ClipboardHeld() { ::CloseClipboard(); }

void ExpectDefaultsStored() {
    EXPECT_EQ(StoredText("CustomFormat"), "");
    EXPECT_EQ(StoredText("FormatIndex"), "0");
    EXPECT_EQ(StoredText("SortIndex"), "0");
    EXPECT_EQ(StoredText("PromptToSave"), "1");
    EXPECT_TRUE(StoredText("StandardFolder").ends_with("\\Desktop")) << StoredText("StandardFolder");
}

void StoreText(const char* valueName, std::string_view text) {
    HKEY key = nullptr;
    ::RegCreateKeyA(HKEY_CURRENT_USER, settingsKey, &key);
    const std::wstring wide = Wide(text);
    ::RegSetValueExW(key, Wide(valueName).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(wide.data()),
                     static_cast<DWORD>(wide.size() * sizeof(wchar_t)));
    ::RegCloseKey(key);
}

std::string StoredText(const char* valueName) {
    std::array<wchar_t, 1024> text{};
    DWORD size = sizeof text;
    const LSTATUS status =
        ::RegGetValueW(HKEY_CURRENT_USER, Wide(settingsKey).c_str(), Wide(valueName).c_str(), RRF_RT_REG_SZ,
                       nullptr, text.data(), &size);
    return status == ERROR_SUCCESS ? Utf8(text.data()) : "(missing)";
}

bool HasStoredSettings() {
    HKEY key = nullptr;
    if (::RegOpenKeyA(HKEY_CURRENT_USER, settingsKey, &key) != ERROR_SUCCESS) return false;
    ::RegCloseKey(key);
    return true;
}

// A key cannot be made where the one above it goes with the session.
void DenyTheSettingsKey() {
    HKEY key = nullptr;
    ::RegCreateKeyExA(HKEY_CURRENT_USER, "Software\\Quorvane", 0, nullptr, REG_OPTION_VOLATILE,
                      KEY_ALL_ACCESS, nullptr, &key, nullptr);
    ::RegCloseKey(key);
}

void SetColor(const Huevox& huevox, const Color& color) {
    huevox.retype(IDC_txtSetRed, std::to_string(color.red));
    huevox.retype(IDC_txtSetGreen, std::to_string(color.green));
    huevox.retype(IDC_txtSetBlue, std::to_string(color.blue));
    Press(VK_RETURN);
    ASSERT_BECOMES(huevox.sliders(), color);
}

void VisitAnotherProgram(HWND window) {
    {
        const Huevox other;
        ASSERT_BECOMES(::GetForegroundWindow(), other.window());
    }
    ::SetForegroundWindow(window);
    ASSERT_BECOMES(::GetForegroundWindow(), window);
}

void Close(const Huevox& huevox) {
    ::PostMessageA(huevox.window(), WM_CLOSE, 0, 0);
    EXPECT_EQ(huevox.waitForEnd(), 0);
}

void CheckNames(const Huevox& huevox, bool isChecked) {
    Click(huevox.control(IDC_chkJSNamesOnly));
    ASSERT_BECOMES(huevox.isEnabled(IDC_lstAutocopy), !isChecked);
}
