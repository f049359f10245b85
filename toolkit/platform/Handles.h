// Who closes a handle of Windows? The value that owns it.
#pragma once

#include <utility>

#include "toolkit/platform/Platform.h"

/// Owns a handle and closes it by calling close.
template <class Handle, auto close>
class Owned {
public:
    Owned() = default;
    explicit Owned(Handle owned) : handle(owned) {}
    Owned(Owned&& other) noexcept : handle(std::exchange(other.handle, {})) {}
    Owned& operator=(Owned&& other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() {
        if (handle) close(handle);
    }

    Handle get() const { return handle; }
    explicit operator bool() const { return handle != Handle{}; }

    /// Gives the handle away to another owner, such as the clipboard.
    Handle release() { return std::exchange(handle, {}); }

private:
    Handle handle{};
};

using OwnedFont = Owned<HFONT, &::DeleteObject>;
using OwnedIcon = Owned<HICON, &::DestroyIcon>;
using OwnedGlobal = Owned<HGLOBAL, &::GlobalFree>;
