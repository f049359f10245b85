// Where does an error in a handler end?
#pragma once

#include <utility>

/// Where an exception ends that no handler expected. The program sets it once, before its first window.
inline void (*errorTrap)() = nullptr;

/// Runs body. This is the one place where unexpected exceptions stop: none crosses a frame of the platform.
template <class Body>
void Trapped(Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        if (errorTrap) errorTrap();
    }
}
