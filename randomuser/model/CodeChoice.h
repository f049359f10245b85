// Which code of the colour is shown, and copied half a second later?
#pragma once

#include <string>
#include <string_view>

#include "randomuser/model/Editing.h"
#include "randomuser/model/Facts.h"

/// The list of notations, and the JavaScript names that can take its place.
class CodeChoice {
public:
    CodeChoice(const Facts& facts, Editing& editing) : facts(facts), editing(editing) {}

    std::string preview(const Color& color, std::string_view customFormat) const;
    /// Whether the keys up and down lead to another row, so many away.
    bool canMove(int rows) const;
    void tell(Look& look) const;

    void begin(int row) { notation = row; }
    void choose(int row);
    void move(int rows) { choose(notation + rows); }
    void switchNames();

private:
    const Facts& facts;
    Editing& editing;
    int notation = 0;
    bool areNamesCopied = false;
};
