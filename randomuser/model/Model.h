// What must there be to see after a step, and which steps are possible then?
#pragma once

#include <memory>

#include "randomuser/model/Action.h"
#include "randomuser/model/Parts.h"

class Model {
public:
    explicit Model(const Facts& facts) : facts(facts), parts(std::make_unique<Parts>(facts)) {}

    /// Whether the step can be made now. One that cannot is left out.
    bool isPossible(const Action& action) const;
    void play(const Action& action);

    Look look() const { return parts->look(); }
    const Files& files() const { return parts->fileCommands.files(); }
    const ClipboardFact& clipboard() const { return parts->clipboard; }
    const Color& current() const { return parts->marks.current(); }
    bool isChanged() const { return parts->fileCommands.isChanged(); }

private:
    const Facts& facts;
    std::unique_ptr<Parts> parts;
};

/// The actions without those that are not possible when their turn comes.
Actions Possible(const Actions& actions, const Facts& facts);
