// How does something that happened reach its handler?
#pragma once

#include <functional>
#include <utility>

#include "toolkit/platform/Trap.h"

/// One thing that can happen, with at most one handler.
template <class... Args>
class Event {
public:
    template <class Target, class Owner>
    void bind(Target* target, void (Owner::*method)(Args...)) {
        handler = [target, method](Args... args) { (target->*method)(args...); };
    }
    void bind(std::function<void(Args...)> function) { handler = std::move(function); }

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
    std::function<void(Args...)> handler;
};
