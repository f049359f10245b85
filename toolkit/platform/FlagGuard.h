// How is a flag set for a while?
#pragma once

#include <utility>

/// Sets a flag for a scope and restores it on every way out.
template <bool value>
class FlagGuard {
public:
    explicit FlagGuard(bool& flag) : flag(flag), before(std::exchange(flag, value)) {}
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;
    ~FlagGuard() { flag = before; }

private:
    bool& flag;
    bool before;
};

using Cleared = FlagGuard<false>;
using Raised = FlagGuard<true>;
