// How is a row of controls of one kind used as an array?
#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "toolkit/forms/Event.h"

class Form;

/// Controls with consecutive ids, indexed from 0.
template <class Kind, int count>
class ControlArray {
public:
    /// more is what each control's constructor takes besides the form and its id.
    template <class... More>
    ControlArray(Form& form, int firstId, More&... more)
        : ControlArray(std::make_index_sequence<count>(), form, firstId, more...) {}

    Kind& operator()(int index) { return controls[index]; }
    const Kind& operator()(int index) const { return controls[index]; }

    auto begin() { return controls.begin(); }
    auto end() { return controls.end(); }

    template <class... Args>
    using EventOf = Event<Args...> Kind::*;

    /// Binds the event of every control to one handler, which is given the control's index first.
    template <class Target, class... Args>
    void bind(EventOf<Args...> event, Target* target, void (Target::*handler)(int, Args...)) {
        for (int index = 0; index < count; ++index) {
            (controls[index].*event).bind([=](Args... args) { (target->*handler)(index, args...); });
        }
    }

private:
    template <std::size_t... index, class... More>
    ControlArray(std::index_sequence<index...>, Form& form, int firstId, More&... more)
        : controls{{Kind(form, firstId + static_cast<int>(index), more...)...}} {}

    std::array<Kind, count> controls;
};
