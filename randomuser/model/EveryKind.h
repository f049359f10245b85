// Does a table have one row for every kind of action?
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "randomuser/model/Action.h"

/// When a row is missing, the compiler names its kind.
template <const auto& table, Kind kind>
struct RowCheck {
    static constexpr auto count = std::ranges::count(table, kind, [](const auto& row) { return row.kind; });
    static_assert(count == 1, "this kind of action has no row, or several");
    static constexpr bool isPassed = true;
};

template <const auto& table, std::size_t... at>
consteval bool HasEach(std::index_sequence<at...> /*kinds*/) {
    return (RowCheck<table, static_cast<Kind>(at)>::isPassed && ...);
}

/// Also that the rows stand in the order of Kind, so that a kind is the number of its row.
template <const auto& table>
consteval bool HasEveryKind() {
    return HasEach<table>(std::make_index_sequence<kindCount>()) && table.size() == kindCount &&
           std::ranges::is_sorted(table, {}, [](const auto& row) { return row.kind; });
}
