#include "randomuser/model/MarkSet.h"

#include "core/Characters.h"
#include "randomuser/model/CodePage.h"

void MarkSet::tell(Look& look) const {
    look.marks = six;
    look.highlighted = highlighted;
    look.letters = letters;
    look.selected = selected;
}

void MarkSet::setCurrent(const Color& color) {
    six.colors.at(selected) = color;
    letters.at(selected).insert(facts.lettersOf(color));
}

void MarkSet::highlight() {
    const std::string& name = currentName();
    if (name == noName || highlighted.at(selected)) return;
    if (name != notJavaScript) highlighted.at(selected) = true;
    forgetTemporaryNames();
}

void MarkSet::forgetTemporaryNames() {
    for (std::size_t mark = 0; mark < 6; ++mark) {
        if (six.names[mark] != notJavaScript) continue;
        six.names[mark] = noName;
        highlighted[mark] = false;
    }
}

void MarkSet::refreshLetters() {
    for (std::size_t mark = 0; mark < 6; ++mark) letters[mark] = {facts.lettersOf(six.colors[mark])};
}

/// Typed, so nothing that was empty and stays so is a change.
void MarkSet::typeName(int mark, const std::string& name) {
    if (name.empty() && six.names.at(mark).empty()) return;
    constexpr std::size_t longest = 21;
    six.names.at(mark) =
        name == notJavaScript ? noName : std::string(FirstCharacters(ShownInBox(name), longest));
    highlighted.at(mark) = false;
}

void MarkSet::eraseCharacter(int mark) {
    const std::string& name = six.names.at(mark);
    typeName(mark, name.substr(0, name.size() - LastCharacter(name).size()));
}

void MarkSet::findNames() {
    for (std::size_t mark = 0; mark < 6; ++mark) six.names[mark] = facts.foundName(six.colors[mark]);
    whiten();
}

void MarkSet::restore(const State& state) {
    for (std::size_t mark = 0; mark < 6; ++mark) {
        if (six.colors[mark] != state.six.colors[mark])
            letters[mark].insert(facts.lettersOf(state.six.colors[mark]));
    }
    six = state.six;
    highlighted = state.highlighted;
    selected = state.selected;
}

void MarkSet::show(const SixMarks& palette) {
    const SixMarks shown = six;
    six = palette;
    for (std::size_t mark = 0; mark < 6; ++mark) {
        // A box that shows the placeholder already is not told of a change that would take it away.
        if (six.names[mark] == notJavaScript && shown.names[mark] != notJavaScript) six.names[mark] = noName;
    }
    selected = 0;
    whiten();
    refreshLetters();
}
