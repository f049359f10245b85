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

/// The same for a body that answers. After an error the answer is the default one of its type.
template <class Body>
auto TrappedAnswer(Body&& body) {
    decltype(body()) answer{};
    Trapped([&] { answer = std::forward<Body>(body)(); });
    return answer;
}
