// Which keys do the controls that the program draws itself take?
#pragma once

#include <optional>

#include "toolkit/controls/CellMove.h"
#include "toolkit/platform/Platform.h"

/// For WM_GETDLGCODE: whether it asks about the Enter key.
inline bool IsEnter(LPARAM lParam) {
    const auto* input = reinterpret_cast<const MSG*>(lParam);
    return input && input->message == WM_KEYDOWN && input->wParam == VK_RETURN;
}

/// Where a key moves the frame over cells.
inline std::optional<CellStep> StepOf(WPARAM key) {
    switch (key) {
        case VK_LEFT: return CellStep::left;
        case VK_RIGHT: return CellStep::right;
        case VK_UP: return CellStep::up;
        case VK_DOWN: return CellStep::down;
        case VK_HOME: return CellStep::first;
        case VK_END: return CellStep::last;
        default: return std::nullopt;
    }
}
