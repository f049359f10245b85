// Which shorter sequence of actions shows the same fault?
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>

#include "randomuser/model/Action.h"

/// The end of the sequence that is enough, twice as long at every try. The first action starts the program
/// and stays. fails plays a sequence from the start; mayGoOn tells whether there is time for another.
template <class Fails, class MayGoOn>
std::optional<Actions> ShortEnd(const Actions& actions, Fails fails, MayGoOn mayGoOn) {
    for (std::size_t length = 8; length + 1 < actions.size() && mayGoOn(); length *= 2) {
        Actions end = {actions.front()};
        end.insert(end.end(), actions.end() - static_cast<std::ptrdiff_t>(length), actions.end());
        if (fails(end)) return end;
    }
    return mayGoOn() && fails(actions) ? std::optional(actions) : std::nullopt;
}

/// Leaves out parts, large ones first and at last single actions, for as long as the rest still fails.
template <class Fails, class MayGoOn>
Actions Shortened(Actions actions, Fails fails, MayGoOn mayGoOn) {
    std::size_t part = actions.size() / 2;
    while (part > 0 && mayGoOn()) {
        bool isShorter = false;
        for (std::size_t at = 1; at < actions.size() && mayGoOn();) {
            Actions rest = actions;
            const auto first = rest.begin() + static_cast<std::ptrdiff_t>(at);
            const auto count = static_cast<std::ptrdiff_t>(std::min(part, rest.size() - at));
            rest.erase(first, first + count);
            if (fails(rest)) {
                actions = rest;
                isShorter = true;
            } else {
                at += part;
            }
        }
        if (part > 1) {
            part /= 2;
        } else if (!isShorter) {
            break;
        }
    }
    return actions;
}
