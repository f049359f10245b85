// Has something newer happened while a routine let others run?
#pragma once

/// One turn of a routine that yields: a newer turn, let in meanwhile, has shown a newer colour.
class Turn {
public:
    explicit Turn(unsigned& turns) : turns(turns), mine(++turns) {}

    bool isOvertaken() const { return turns != mine; }

private:
    unsigned& turns;
    unsigned mine;
};
