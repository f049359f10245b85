// How is a flag set for a while?
#pragma once

#include <utility>

/// Sets a flag to a value for a scope; on every way out it is what it was before.
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
