#include "randomuser/model/CodeChoice.h"

std::string CodeChoice::preview(const Color& color, std::string_view customFormat) const {
    return areNamesCopied ? facts.nameOf(color) : CodeOf(notation, color, customFormat);
}

bool CodeChoice::canMove(int rows) const {
    const int row = notation + rows;
    return !areNamesCopied && row >= 0 && row < 12 && row != notation;
}

void CodeChoice::tell(Look& look) const {
    look.notation = areNamesCopied ? -1 : notation;
    look.areNamesCopied = areNamesCopied;
}

void CodeChoice::choose(int row) {
    if (areNamesCopied) return;
    notation = row;
    editing.applyAgain();
}

void CodeChoice::switchNames() {
    areNamesCopied = !areNamesCopied;
    editing.applyAgain();
}
