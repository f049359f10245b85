// Where does an error in a handler end?
#pragma once

#include <utility>

/// Called for an exception that no handler expected. Set once, before the first window.
inline void (*errorTrap)() = nullptr;

/// Runs body. This is the one place where unexpected exceptions stop: none passes through Windows.
template <class Body>
void Trapped(Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        if (errorTrap) errorTrap();
    }
}
