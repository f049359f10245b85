// How does something that happened reach its handler?
#pragma once

#include <cassert>
#include <functional>
#include <utility>

#include "toolkit/platform/Trap.h"

/// Something that can happen, with one handler at most.
template <class... Args>
class Event {
public:
    template <class Target, class Owner>
    void bind(Target* target, void (Owner::*method)(Args...)) {
        assertUnbound();
        handler = [target, method](Args... args) { (target->*method)(args...); };
    }
    void bind(std::function<void(Args...)> function) {
        assertUnbound();
        handler = std::move(function);
    }

    bool isBound() const { return static_cast<bool>(handler); }

    /// Runs the handler; an exception ends in the error trap.
    void raise(Args... args) const {
        Trapped([&] { pass(args...); });
    }

    /// Runs the handler; an exception is the caller's.
    void pass(Args... args) const {
        if (handler) handler(args...);
    }

private:
    /// A first handler would silently never run again.
    void assertUnbound() const { assert(!isBound()); }

    std::function<void(Args...)> handler;
};
