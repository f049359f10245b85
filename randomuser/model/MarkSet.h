// Which colours, names and letters do the six marks have?
#pragma once

#include <array>
#include <set>
#include <string>

#include "randomuser/model/Facts.h"
#include "randomuser/model/Look.h"
#include "randomuser/model/PaletteText.h"

class MarkSet {
public:
    /// All that a step of the user's brings back.
    struct State {
        SixMarks six = {};
        std::array<bool, 6> highlighted = {};
        int selected = 0;
    };

    explicit MarkSet(const Facts& facts) : facts(facts) {}

    const SixMarks& all() const { return six; }
    const Color& current() const { return six.colors.at(selected); }
    const std::string& currentName() const { return six.names.at(selected); }
    int selectedMark() const { return selected; }
    void tell(Look& look) const;

    void setCurrent(const Color& color);
    /// The user has changed the colour: the name may not fit any more.
    void highlight();
    void whiten() { highlighted.fill(false); }
    void refreshLetters();
    void select(int mark) { selected = mark; }
    void typeName(int mark, const std::string& name);
    void eraseCharacter(int mark);
    void findNames();
    State state() const { return {six, highlighted, selected}; }
    void restore(const State& state);
    /// Another palette, with its first mark selected.
    void show(const SixMarks& palette);

private:
    void forgetTemporaryNames();

    const Facts& facts;
    SixMarks six;
    std::array<bool, 6> highlighted = {};
    std::array<std::set<std::string>, 6> letters = {};
    int selected = 0;
};
