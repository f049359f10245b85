#include "tests/driver/LastKeys.h"

#include <array>
#include <deque>

namespace {

constexpr std::size_t most = 8;
constexpr std::array<WORD, 3> modifiers = {VK_SHIFT, VK_CONTROL, VK_MENU};

struct MetKey {
    WORD key;
    HWND focus;
    std::array<bool, modifiers.size()> held;
};

std::deque<MetKey> keys;

HWND FocusInFront() {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    ::GetGUIThreadInfo(0, &info);
    return info.hwndFocus;
}

std::string Told(const MetKey& met) {
    std::string told = std::to_string(met.key) + " at " + std::to_string(::GetDlgCtrlID(met.focus));
    for (std::size_t index = 0; index < modifiers.size(); ++index) {
        if (met.held[index]) told += " with " + std::to_string(modifiers[index]);
    }
    return told;
}

}  // namespace

void RememberKey(WORD key) {
    MetKey met{key, FocusInFront(), {}};
    for (std::size_t index = 0; index < modifiers.size(); ++index)
        met.held[index] = ::GetAsyncKeyState(modifiers[index]) < 0;
    keys.push_back(met);
    if (keys.size() > most) keys.pop_front();
}

std::string LastKeys() {
    std::string told;
    for (const MetKey& met : keys) told += (told.empty() ? "" : ", ") + Told(met);
    return told;
}
